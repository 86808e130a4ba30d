#include "System.h"

#include <clocale>
#include <cstdio>
#include <cwchar>
#include <dlfcn.h>
#include <malloc.h>

void* LoadModule(char const* path)
{
    void* const module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr)
        std::printf("%s\n", dlerror());
    return module;
}

void* FindFunction(void* module, char const* name)
{
    return dlsym(module, name);
}

void UnloadModule(void* module)
{
    dlclose(module);
}

bool IsLoaded(char const* name)
{
    return dlopen(name, RTLD_NOW | RTLD_NOLOAD) != nullptr;
}

long long CountHeapBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return 1; // its notes on every destructor of a static grow; what is lost, it tells itself at the end
#else
    return static_cast<long long>(mallinfo2().uordblks);
#endif
}

std::string FormatBySystem(long long number)
{
    std::setlocale(LC_ALL, ""); // of this program; nonsense leaves it as it was
    wchar_t wide[64] = {};
    std::swprintf(wide, 64, L"%'lld", number);
    std::setlocale(LC_ALL, "C");
    std::string bytes;
    for (wchar_t const* unit = wide; *unit != L'\0'; ++unit)
        bytes += *unit == 0x202F ? '\xA0' : static_cast<char>(*unit);
    return bytes;
}
