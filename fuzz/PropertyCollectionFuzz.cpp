#include "Choices.h"
#include "FactoryTrial.h"

#include <cstdio>
#include <cstdlib>

// The input chooses operations on a factory; after each, the factory must be as the plain one.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Choices choices(data, size);
    PropertyCollectionTests::FactoryTrial trial(std::ref(choices));
    while (!choices.IsAtEnd())
    {
        std::string const difference = trial.Step();
        if (difference.empty())
            continue;
        std::fprintf(stderr, "%s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
