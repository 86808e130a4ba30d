#include <Platform/Process.h>

#include <Platform/Posix/NativePath.h>

#include <system_error>

namespace Vek::Platform
{

std::wstring GetProgramPath()
{
    std::error_code error;
    return GetWidePath(std::filesystem::read_symlink("/proc/self/exe", error));
}

wchar_t GetPathSeparator() noexcept
{
    return L'/';
}

} // namespace Vek::Platform
