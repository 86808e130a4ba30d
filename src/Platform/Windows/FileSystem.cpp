#include <Platform/FileSystem.h>

#include <Platform/Windows/NativePath.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

PathState QueryPath(std::wstring const& path)
{
    std::wstring const native = GetNativePath(path);
    if (GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES)
        return PathState::Present;
    return GetLastError() == ERROR_FILE_NOT_FOUND ? PathState::Missing : PathState::Unknown;
}

bool EnsureDirectory(std::wstring const& path)
{
    std::wstring const native = GetNativePath(path);
    return CreateDirectoryW(native.c_str(), nullptr) != 0 || GetLastError() == ERROR_ALREADY_EXISTS;
}

bool CopyWholeFile(std::wstring const& source, std::wstring const& target, bool overwrite)
{
    return CopyFileW(GetNativePath(source).c_str(), GetNativePath(target).c_str(), overwrite ? FALSE : TRUE) != 0;
}

bool RenameFile(std::wstring const& source, std::wstring const& target)
{
    std::wstring const native = GetNativePath(source);
    DWORD const attributes = GetFileAttributesW(native.c_str());
    bool const isFile = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    return isFile && MoveFileExW(native.c_str(), GetNativePath(target).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

void RemoveFile(std::wstring const& path)
{
    DeleteFileW(GetNativePath(path).c_str());
}

} // namespace Vek::Platform
