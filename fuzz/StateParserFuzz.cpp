#include "Choices.h"
#include "GrammarParser.h"
#include "RandomGrammar.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace StateParserTests;

namespace
{

void Compare(std::string const& expected, std::string const& trace, Grammar const& grammar, std::string const& source)
{
    if (trace == expected)
        return;
    std::fprintf(stderr, "%ssource %s\nexpected\n%sgot\n%s", ToString(grammar).c_str(), Quoted(source).c_str(),
                 expected.c_str(), trace.c_str());
    std::abort();
}

} // namespace

// The input's first bytes choose the tokens and consumers, the rest is the source; every way of reading must give the
// trace of the naive parser.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Choices choices(data, size);
    RandomGrammar make(std::ref(choices));
    Grammar const grammar = make.MakeGrammar();
    std::size_t const pieceSize = 1 + choices(16);
    std::string const source = choices.GetRest();

    GrammarParser parser(grammar);
    std::string const expected = NaiveParser(grammar, source).Run();
    Compare(expected, parser.RunString(source), grammar, source);
    Compare(expected, parser.RunStream(source, false), grammar, source);
    Compare(expected, parser.RunStream(source, true, pieceSize, true), grammar, source);
    return 0;
}
