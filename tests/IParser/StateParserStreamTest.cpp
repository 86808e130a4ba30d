#include "BreakingBuffer.h"

#include <GrammarParser.h>

using namespace StateParserTests;
using Params = State::ResultParams;

namespace
{

constexpr std::size_t c_block = 1 << 20;

/// A parser of one state that notes where its texts and tokens begin, and stops at "!".
struct Places
{
    Places()
    {
        state.RegisterTextConsumer(
            [this](std::string const& text, Params& params)
            { trace += std::to_string(text.size()) + " chars @" + std::to_string(params.position) + ";"; });
        state.RegisterEndOfSourceConsumer([this](Params& params)
                                          { trace += "end @" + std::to_string(params.position) + ";"; });
        for (char const* const token : { "<", "<=+>" })
            state.RegisterTokenConsumer(
                token,
                [this, token](Params& params) { trace += token + (" @" + std::to_string(params.position) + ";"); },
                State::CaseSensitive);
        state.RegisterTokenConsumer(
            "!", [](Params& params) { params.stop = true; }, State::CaseSensitive);
    }

    StateParser parser;
    State& state = *parser.RegisterState(1, StateParser::KeepWhiteSpace);
    std::string trace;
};

} // namespace

TEST(StateParserStream, ATokenMayStraddleABlockAtEveryByte)
{
    for (std::size_t start = c_block - 5; start <= c_block + 1; ++start)
        for (bool const isWhole : { true, false })
        {
            SCOPED_TRACE(start);
            std::string source(start, 'a');
            source[10] = '\n';
            std::istringstream stream(source + (isWhole ? "<=+>bc" : "<=+bcd"));
            Places places;
            EXPECT_TRUE(places.parser.ProcessSource(stream, true));
            std::string const at = " @" + std::to_string(start);
            std::string const rest = isWhole ? "<=+>" + at + ";2 chars @" + std::to_string(start + 4)
                                             : "<" + at + ";5 chars @" + std::to_string(start + 1);
            EXPECT_EQ(std::to_string(start) + " chars @0;" + rest + ";end @" + std::to_string(start + 6) + ";",
                      places.trace);
            EXPECT_EQ(2, places.parser.GetParserResult().line);
            EXPECT_EQ(start + 6 - 10, static_cast<std::size_t>(places.parser.GetParserResult().column));
        }
}

TEST(StateParserStream, ATextMayBeLongerThanManyBlocks)
{
    std::string text;
    for (int line = 0; text.size() < 3 * c_block + 77; ++line)
        text += std::string(static_cast<std::size_t>(line % 100), 'y') + "\n";
    int const lines = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    std::string const size = std::to_string(text.size());
    for (bool const isRefused : { false, true })
    {
        Places places;
        if (isRefused)
            places.state.RegisterTextConsumer([](auto&, Params& params) { params.isSyntaxError = true; });
        std::istringstream stream("<" + text + "<");
        EXPECT_EQ(!isRefused, places.parser.ProcessSource(stream, true));
        std::string const rest =
            size + " chars @1;< @" + std::to_string(text.size() + 1) + ";end @" + std::to_string(text.size() + 2) + ";";
        EXPECT_EQ(isRefused ? "< @0;" : "< @0;" + rest, places.trace);
        EXPECT_EQ(isRefused ? 1 : lines + 1, places.parser.GetParserResult().line);
        EXPECT_EQ(2, places.parser.GetParserResult().column);
    }
}

TEST(StateParserStream, ByCharacterReadsNoFurtherThanRecognitionNeeds)
{
    Rows<char const*, char const*, char const*> const rows = {
        { "ab!cd", "cd", "a token that nothing goes on from" },
        { "!", "", "the end is not looked for" },
        { "a-->bc", "bc", "the longest token" },
        { "a--bc", "c", "one byte tells that it is the shorter one" },
    };
    for (auto const& [source, left, why] : rows)
    {
        Places places;
        auto const stop = [](Params& params) { params.stop = true; };
        places.state.RegisterTokenConsumer("--", stop, State::CaseSensitive);
        places.state.RegisterTokenConsumer("-->", stop, State::CaseInsensitive);
        std::istringstream stream(source);
        EXPECT_TRUE(places.parser.ProcessSource(stream, false));
        EXPECT_TRUE(stream.good());
        std::string rest;
        std::getline(stream, rest);
        EXPECT_EQ(left, rest) << why;
    }
}

TEST(StateParserStream, TheEndIsNoFailureOfTheStream)
{
    for (bool const useBlockBuffer : { true, false })
    {
        Places places;
        std::istringstream stream("a<b");
        stream.exceptions(std::ios_base::failbit | std::ios_base::badbit);
        EXPECT_TRUE(places.parser.ProcessSource(stream, useBlockBuffer));
        EXPECT_TRUE(stream.eof());
        EXPECT_FALSE(stream.fail());
        EXPECT_TRUE(places.parser.ProcessSource(stream, useBlockBuffer));
        EXPECT_EQ("1 chars @0;< @1;1 chars @2;end @3;end @0;", places.trace) << "not good counts as ended";
    }
}

TEST(StateParserStream, AStreamThatFailsIsBadAndThrowsIfAskedTo)
{
    for (bool const throws : { false, true })
    {
        Places places;
        BreakingBuffer buffer("a<");
        std::istream stream(&buffer);
        stream.exceptions(throws ? std::ios_base::badbit : std::ios_base::goodbit);
        if (throws)
            EXPECT_THROW(places.parser.ProcessSource(stream, false), std::runtime_error);
        else
            EXPECT_TRUE(places.parser.ProcessSource(stream, false));
        EXPECT_TRUE(stream.bad());
        EXPECT_EQ(throws ? std::ios_base::badbit : std::ios_base::goodbit, stream.exceptions());
        EXPECT_EQ(throws ? "" : "1 chars @0;< @1;end @2;", places.trace);
    }
}

TEST(StateParserStream, AReadShowsThePromptThatIsTiedToIt)
{
    Places places;
    struct : std::stringbuf
    {
        int sync() override { return ++count, 0; }
        int count = 0;
    } flushes;
    std::ostream output(&flushes);
    std::istringstream stream("a!");
    stream.tie(&output);
    EXPECT_TRUE(places.parser.ProcessSource(stream, false));
    EXPECT_GT(flushes.count, 0);
}
