// Loads the library many times: it must always report what the system's own formatting gives, leave the process
// each time, and leave no memory behind. Usage: ReloadTest MODULE NAME_OF_LIBRARY ROUNDS
#include "System.h"

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr long long c_nanoseconds = 1234567;

std::string GetExpectedReport()
{
    std::string const time = FormatBySystem(c_nanoseconds);
    return "A name that is too long for a string without memory 1 measures: " + time + " ns (avg), " + time +
           " ns (total)\nEarly No measures\n";
}

bool RunOnce(char const* path, char const* library, std::string const& expected)
{
    Work work = nullptr;
    void* const module = LoadModule(path, work);
    if (module == nullptr)
        return false;
    std::string const report = work(c_nanoseconds);
    UnloadModule(module);
    if (report != expected)
        std::printf("reported\n%sinstead of\n%s", report.c_str(), expected.c_str());
    else if (IsLoaded(path) || IsLoaded(library))
        std::printf("still loaded\n");
    else
        return true;
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    int const rounds = std::atoi(argv[3]);
    std::string const expected = GetExpectedReport();
    long long early = 0;
    for (int round = 1; round <= rounds; ++round)
    {
        if (!RunOnce(argv[1], argv[2], expected))
            return 1;
        if (round == rounds / 10)
            early = CountHeapBytes();
    }
    long long const late = CountHeapBytes();
    std::printf("%lld bytes in use after a tenth of the rounds, %lld at the end\n", early, late);
    return early > 0 && late <= early ? 0 : 1;
}
