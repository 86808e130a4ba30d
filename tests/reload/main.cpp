// Loads the library many times: it must always report what the system's own formatting gives, leave the process
// each time, and leave no memory behind. In 0 rounds: it must leave the process after other uses too, but stay for its
// signal handlers once a guarded call has installed them. Usage: ReloadTest MODULE NAME_OF_LIBRARY ROUNDS
#include "System.h"

#include <csignal>
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
    void* const module = LoadModule(path);
    if (module == nullptr)
        return false;
    std::string const report =
        reinterpret_cast<char const* (*)(long long)>(FindFunction(module, "Work"))(c_nanoseconds);
    UnloadModule(module);
    if (report != expected)
        std::printf("reported\n%sinstead of\n%s", report.c_str(), expected.c_str());
    else if (IsLoaded(path) || IsLoaded(library))
        std::printf("still loaded\n");
    else
        return true;
    return false;
}

/// Whether the call answers true, and leaves the library as said.
bool Leaves(char const* path, char const* library, char const* function, bool isLoaded)
{
    void* const module = LoadModule(path);
    bool const isDone = module != nullptr && reinterpret_cast<bool (*)()>(FindFunction(module, function))();
    UnloadModule(module);
    bool const isFine = isDone && IsLoaded(library) == isLoaded;
    std::printf("%s: %s\n", function, isFine ? "fine" : isDone ? "loaded or not, but wrongly" : "fails");
    return isFine;
}

volatile std::sig_atomic_t s_signals = 0;

bool StaysForItsHandlers(char const* path, char const* library)
{
    std::signal(SIGFPE, [](int) { s_signals = s_signals + 1; });
    bool const isFine = Leaves(path, library, "UseTheRest", false) && Leaves(path, library, "UseTheRest", false) &&
                        Leaves(path, library, "UseTheGuard", true);
    std::raise(SIGFPE); // which goes on to the program
    return isFine && s_signals == 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    int const rounds = std::atoi(argv[3]);
    if (rounds == 0)
        return StaysForItsHandlers(argv[1], argv[2]) ? 0 : 1;
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
