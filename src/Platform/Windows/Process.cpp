#include <Platform/Process.h>

#include <Platform/Windows/WindowsHeader.h>

#include <algorithm>
#include <memory>
#include <shellapi.h>

namespace Vek::Platform
{

std::wstring GetProgramPath()
{
    for (std::wstring path(MAX_PATH, L'\0');; path.resize(2 * path.size()))
    {
        DWORD const size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (size < path.size()) // else it was cut; 0 when the system refuses
            return path.substr(0, size);
    }
}

wchar_t GetPathSeparator() noexcept
{
    return L'\\';
}

std::optional<std::vector<std::wstring>> GetProgramArguments()
{
    int count = 0;
    std::unique_ptr<LPWSTR, decltype(&LocalFree)> const words(CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    if (words == nullptr)
        return std::nullopt;
    return std::vector<std::wstring>(words.get() + std::min(count, 1), words.get() + count);
}

} // namespace Vek::Platform
