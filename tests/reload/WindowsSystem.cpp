#include "System.h"

#include <cstdio>
#include <windows.h>

void* LoadModule(char const* path)
{
    HMODULE const module = LoadLibraryA(path);
    if (module == nullptr)
        std::printf("error %lu\n", GetLastError());
    return module;
}

void* FindFunction(void* module, char const* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}

void UnloadModule(void* module)
{
    FreeLibrary(static_cast<HMODULE>(module));
}

bool IsLoaded(char const* name)
{
    return GetModuleHandleA(name) != nullptr;
}

long long CountHeapBytes()
{
    HANDLE heaps[64] = {};
    DWORD const count = GetProcessHeaps(64, heaps);
    long long bytes = 0;
    for (DWORD heap = 0; heap < count && heap < 64; ++heap)
    {
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[heap], &entry) != 0)
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? static_cast<long long>(entry.cbData) : 0;
    }
    return bytes;
}

std::string FormatBySystem(long long number)
{
    // Wine's own reading of the user's grouping leaves all but one separator out; all the languages here have threes.
    wchar_t separator[8] = {};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
    wchar_t point[] = L".";
    NUMBERFMTW const format = { 0, 0, 3, point, separator, 1 };
    wchar_t text[64] = {};
    GetNumberFormatEx(LOCALE_NAME_USER_DEFAULT, 0, std::to_wstring(number).c_str(), &format, text, 64);
    char bytes[64] = {};
    WideCharToMultiByte(1252, 0, text, -1, bytes, 64, nullptr, nullptr);
    return bytes;
}
