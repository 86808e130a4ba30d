#include <Platform/FileSystem.h>

#include <Platform/Posix/NativePath.h>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace Vek::Platform
{

namespace
{

constexpr mode_t c_everybody = 0777; // less what the process masks

bool HasParent(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    std::size_t const separator = path.rfind('/');
    std::string const parent = separator == std::string::npos ? "." : path.substr(0, separator + 1);
    struct stat status = {};
    return stat(parent.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

PathState QueryPath(std::wstring const& path)
{
    std::string const native = GetNativePath(path).native();
    struct stat status = {};
    if (lstat(native.c_str(), &status) == 0)
        return PathState::Present;
    // A missing directory and an empty path give the same error; Win32 tells them from a missing file.
    return errno == ENOENT && !native.empty() && HasParent(native) ? PathState::Missing : PathState::Unknown;
}

bool EnsureDirectory(std::wstring const& path)
{
    return mkdir(GetNativePath(path).c_str(), c_everybody) == 0 || errno == EEXIST;
}

bool RenameFile(std::wstring const& source, std::wstring const& target)
{
    std::string const native = GetNativePath(source).native();
    struct stat status = {};
    bool const isFile = lstat(native.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
    return isFile && rename(native.c_str(), GetNativePath(target).c_str()) == 0;
}

void RemoveFile(std::wstring const& path)
{
    unlink(GetNativePath(path).c_str());
}

} // namespace Vek::Platform
