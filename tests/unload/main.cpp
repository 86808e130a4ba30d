// Shows that the library leaves the process with the last module that uses it, and stays for its signal handlers once a
// guarded call has installed them. Usage: UnloadProgram MODULE NAME_OF_LIBRARY

#include <csignal>
#include <cstdio>

#include <dlfcn.h>
#include <signal.h>

namespace
{

volatile std::sig_atomic_t s_signals = 0;

bool IsLoaded(char const* library)
{
    void* const handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
    if (handle != nullptr)
        dlclose(handle);
    return handle != nullptr;
}

bool CallOnce(char const* module, char const* function, char const* library)
{
    void* const handle = dlopen(module, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
    {
        std::puts(dlerror());
        return false;
    }
    auto const call = reinterpret_cast<bool (*)()>(dlsym(handle, function));
    bool const isDone = call != nullptr && call() && IsLoaded(library);
    return dlclose(handle) == 0 && isDone;
}

bool Check(bool isFine, char const* what)
{
    if (!isFine)
        std::printf("Failed: %s\n", what);
    return isFine;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3)
        return 2;
    char const* const module = arguments[1];
    char const* const library = arguments[2];
    struct sigaction action = {};
    action.sa_handler = [](int) { s_signals = s_signals + 1; };
    sigaction(SIGFPE, &action, nullptr);

    bool isFine = true;
    for (int i = 0; i < 3; ++i)
    {
        isFine &= Check(CallOnce(module, "Use", library), "the module's call");
        isFine &= Check(!IsLoaded(library), "unloading");
    }
    isFine &= Check(CallOnce(module, "UseGuard", library), "the module's guarded call");
    isFine &= Check(IsLoaded(library), "staying for its signal handlers");
    raise(SIGFPE);
    isFine &= Check(s_signals == 1, "handing the signal to the program");
    return isFine ? 0 : 1;
}
