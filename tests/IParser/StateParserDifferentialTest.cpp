#include <GrammarParser.h>
#include <RandomGrammar.h>

#include <gtest/gtest.h>

#include <random>

using namespace StateParserTests;

namespace
{

struct Run
{
    std::string name;
    std::string trace;
};

std::vector<Run> RunWhole(GrammarParser& parser, std::string const& source)
{
    return { { "string", parser.RunString(source) },
             { "by character", parser.RunStream(source, false) },
             { "by block", parser.RunStream(source, true) } };
}

std::vector<Run> RunInPieces(GrammarParser& parser, std::string const& source, std::size_t pieceSize)
{
    std::string const pieces = " in pieces of " + std::to_string(pieceSize);
    return { { "by character" + pieces, parser.RunStream(source, false, pieceSize) },
             { "by block" + pieces, parser.RunStream(source, true, pieceSize) },
             { "by block, short reads" + pieces, parser.RunStream(source, true, pieceSize, true) } };
}

/// True when every run wrote `expected`; prints all operands otherwise.
bool Agree(std::vector<Run> const& runs, std::string const& expected, Grammar const& grammar, std::string const& source)
{
    for (Run const& run : runs)
    {
        EXPECT_EQ(expected, run.trace) << run.name << "\n" << ToString(grammar) << Quoted(source);
        if (expected != run.trace)
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
    for (unsigned int seed = 0; seed < 2500; ++seed)
    {
        SCOPED_TRACE(seed);
        Random random(seed);
        RandomGrammar make(random);
        Grammar const grammar = make.MakeGrammar();
        GrammarParser parser(grammar);
        for (unsigned int length : { 6U, 30U })
        {
            std::string const source = make.MakeSource(length);
            std::string const expected = NaiveParser(grammar, source).Run();
            ASSERT_TRUE(Agree(RunWhole(parser, source), expected, grammar, source));
            ASSERT_TRUE(Agree(RunInPieces(parser, source, 1 + random(length)), expected, grammar, source));
        }
    }
}

TEST(StateParserDifferential, EverySplitOfASource)
{
    for (unsigned int seed = 0; seed < 100; ++seed)
    {
        SCOPED_TRACE(seed);
        RandomGrammar make(Random{ seed });
        Grammar const grammar = make.MakeGrammar();
        GrammarParser parser(grammar);
        std::string const source = make.MakeSource(20);
        std::string const expected = NaiveParser(grammar, source).Run();
        for (std::size_t pieceSize = 1; pieceSize <= source.size(); ++pieceSize)
            ASSERT_TRUE(Agree(RunInPieces(parser, source, pieceSize), expected, grammar, source));
    }
}

// The source outgrows the few kilobytes that the parser keeps beside a block, again and again.
TEST(StateParserDifferential, SourcesThatOutgrowTheBuffer)
{
    for (unsigned int seed = 0; seed < 40; ++seed)
    {
        SCOPED_TRACE(seed);
        Random random(seed);
        RandomGrammar make(random);
        Grammar const grammar = make.MakeGrammar();
        GrammarParser parser(grammar);
        std::string const source = make.MakeSource(9000);
        std::string const expected = NaiveParser(grammar, source).Run();
        ASSERT_TRUE(Agree(RunWhole(parser, source), expected, grammar, source));
        ASSERT_TRUE(Agree(RunInPieces(parser, source, 1), expected, grammar, source));
        ASSERT_TRUE(Agree(RunInPieces(parser, source, 1 + random(3000)), expected, grammar, source));
    }
}
