#include <GrammarParser.h>
#include <RandomGrammar.h>

#include <cerrno>

using namespace StateParserTests;

namespace
{

/// Runs the source in pieces of the given size, in whole when it is 0. True when every mode wrote `expected`; prints
/// all operands otherwise.
bool Agree(std::string const& expected, Grammar const& grammar, std::string const& source, std::size_t pieceSize)
{
    GrammarParser parser(grammar);
    std::size_t const size = pieceSize == 0 ? source.size() + 1 : pieceSize;
    std::string const traces[] = { parser.RunString(source), parser.RunStream(source, false, size),
                                   parser.RunStream(source, true, size), parser.RunStream(source, true, size, true) };
    for (std::string const& trace : traces)
    {
        EXPECT_EQ(expected, trace) << "mode " << &trace - traces << ", pieces of " << size << "\n"
                                   << ToString(grammar) << Quoted(source);
        if (expected != trace)
            return false;
    }
    return true;
}

class Random
{
public:
    explicit Random(unsigned int seed) : m_engine(seed) {}
    unsigned int operator()(unsigned int end) { return static_cast<unsigned int>(m_engine() % end); }

private:
    std::mt19937 m_engine;
};

} // namespace

TEST(StateParserDifferential, RandomTokensAndSourcesInEveryMode)
{
    Rows<unsigned int, unsigned int, char const*> const rows = {
        { 2500, 6, "tokens cut short" },
        { 2500, 30, "texts between them" },
        { 40, 9000, "outgrows the few kilobytes that the parser keeps beside a block, again and again" },
    };
    for (auto const& [seeds, length, why] : rows)
        for (unsigned int seed = 0; seed < seeds; ++seed)
        {
            SCOPED_TRACE(why + std::to_string(seed));
            Random random(seed);
            RandomGrammar make(random);
            Grammar const grammar = make.MakeGrammar();
            std::string const source = make.MakeSource(length);
            std::string const expected = NaiveParser(grammar, source).Run();
            for (std::size_t const pieceSize : { 0U, 1 + random(length / 3) })
                ASSERT_TRUE(Agree(expected, grammar, source, pieceSize));
        }
}

TEST(StateParserDifferential, EverySplitOfASource)
{
    for (unsigned int seed = 0; seed < 100; ++seed)
    {
        SCOPED_TRACE(seed);
        RandomGrammar make(Random{ seed });
        Grammar const grammar = make.MakeGrammar();
        std::string const source = make.MakeSource(20);
        std::string const expected = NaiveParser(grammar, source).Run();
        for (std::size_t pieceSize = 1; pieceSize <= source.size(); ++pieceSize)
            ASSERT_TRUE(Agree(expected, grammar, source, pieceSize));
    }
}

// What the naive parser leaves to the C library as well.
TEST(StateParserDifferential, TellsNumbersFromTexts)
{
    // clang-format off
    Rows<std::string, char const*> const rows = { // null for a text
        { "12.5", "12.500000" }, { "12.5x", nullptr }, { " 12", "12.000000" }, { "12 ", nullptr },
        { "-1e2", "-100.000000" }, { "1e", nullptr }, { "0x10", "16.000000" }, { "-", nullptr }, { "1e999", nullptr },
        { "1e-999", nullptr }, { std::string("1\0", 2), nullptr },
    };
    // clang-format on
    for (auto const& [source, number] : rows)
        for (bool const isTextView : { false, true })
        {
            errno = EDOM;
            SCOPED_TRACE(Quoted(source));
            GrammarParser parser(
                { { .text = { Reaction::Continue }, .number = { Reaction::Continue }, .isTextView = isTextView } });
            std::string const what = number != nullptr ? std::string("number ") + number : "text " + Quoted(source);
            EXPECT_EQ(what + " @0 in 7\n-> 0 in 7 at 1:" + std::to_string(source.size() + 1) + "\n",
                      parser.RunString(source));
            EXPECT_EQ(EDOM, errno);
        }
}
