#include <Platform/FileReplacement.h>

#include <Platform/Windows/NativePath.h>

#include <algorithm>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_greatestWrite = 1U << 30U;

bool WriteAll(HANDLE file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        DWORD written = 0;
        auto const wanted = static_cast<DWORD>(std::min(bytes.size(), c_greatestWrite));
        if (!WriteFile(file, bytes.data(), wanted, &written, nullptr) || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return FlushFileBuffers(file) != 0;
}

} // namespace

NewFile WriteNewFile(std::wstring const& path, std::string_view bytes)
{
    std::wstring const native = GetNativePath(path);
    HANDLE const file =
        CreateFileW(native.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_EXISTS ? NewFile::Exists : NewFile::NotCreated;
    bool const isWritten = WriteAll(file, bytes);
    if (CloseHandle(file) && isWritten)
        return NewFile::Written;
    DeleteFileW(native.c_str());
    return NewFile::NotWritten;
}

bool IsFileOrMissing(std::wstring const& path)
{
    DWORD const attributes = GetFileAttributesW(GetNativePath(path).c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ||
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
}

bool MoveOver(std::wstring const& source, std::wstring const& target)
{
    return MoveFileExW(GetNativePath(source).c_str(), GetNativePath(target).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace Vek::Platform
