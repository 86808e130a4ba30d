#include <Platform/Windows/NativePath.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

namespace
{

// Directories must leave room for a file name of the old kind (8 + 1 + 3) and the final 0.
constexpr std::size_t c_usualLength = MAX_PATH - 12 - 1;

/// Absolute, without "." and "..", every '/' a '\\'; empty when the system refuses.
std::wstring GetFullPath(std::wstring const& path)
{
    DWORD const room = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(room, L'\0');
    DWORD const size = GetFullPathNameW(path.c_str(), room, full.data(), nullptr);
    full.resize(size < room ? size : 0);
    return full;
}

} // namespace

std::wstring GetNativePath(std::wstring const& path)
{
    if (path.find(L'\0') != std::wstring::npos)
        return std::wstring();
    std::wstring const full = GetFullPath(path);
    if (full.size() <= c_usualLength || full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\"))
        return path;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

} // namespace Vek::Platform
