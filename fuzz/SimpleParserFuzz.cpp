#include "Choices.h"
#include "ScannerTrial.h"

#include <cstdio>
#include <cstdlib>

// The input's first bytes choose the tokens and where raw text is asked for, the rest is the source; the parser must
// give the symbols of the naive scanner.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::size_t const choicesSize = size / 2;
    Choices choices(data, choicesSize);
    SimpleParserTests::ScannerTrial trial(std::ref(choices));
    std::string const rest(data + choicesSize, data + size);
    std::string const difference = trial.Compare(rest.c_str()); // a source ends at its first zero byte
    if (difference.empty())
        return 0;
    std::fprintf(stderr, "%s\n", difference.c_str());
    std::abort();
}
