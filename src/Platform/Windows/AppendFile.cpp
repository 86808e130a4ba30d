#include <Platform/AppendFile.h>

#include <Platform/Windows/NativePath.h>

#include <Platform/Windows/WindowsHeader.h>

#include <algorithm>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_writeSize = std::size_t{ 1 } << 30U; // the system counts in 32 bits

HANDLE GetHandle(std::intptr_t handle) noexcept
{
    return reinterpret_cast<HANDLE>(handle);
}

std::intptr_t Open(std::wstring const& path, DWORD access, DWORD disposition)
{
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const handle =
        CreateFileW(GetNativePath(path).c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return reinterpret_cast<std::intptr_t>(handle);
}

bool IsSameFile(HANDLE a, HANDLE b) noexcept
{
    BY_HANDLE_FILE_INFORMATION first{};
    BY_HANDLE_FILE_INFORMATION second{};
    return GetFileInformationByHandle(a, &first) != 0 && GetFileInformationByHandle(b, &second) != 0 &&
           first.dwVolumeSerialNumber == second.dwVolumeSerialNumber && first.nFileIndexHigh == second.nFileIndexHigh &&
           first.nFileIndexLow == second.nFileIndexLow;
}

} // namespace

AppendFile::AppendFile(std::wstring const& path)
    // Without the right to write elsewhere the system appends, whatever others have appended meanwhile.
    : m_handle(Open(path, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE, OPEN_ALWAYS))
{
    if (m_handle == c_noHandle || IsOnDisk() || GetFileType(GetHandle(m_handle)) == FILE_TYPE_CHAR)
        return;
    CloseHandle(GetHandle(m_handle));
    m_handle = c_noHandle;
}

AppendFile::~AppendFile()
{
    if (m_handle != c_noHandle)
        CloseHandle(GetHandle(m_handle));
}

bool AppendFile::IsOnDisk() const noexcept
{
    return GetFileType(GetHandle(m_handle)) == FILE_TYPE_DISK;
}

unsigned long long AppendFile::GetSize() const noexcept
{
    LARGE_INTEGER size{};
    GetFileSizeEx(GetHandle(m_handle), &size);
    return static_cast<unsigned long long>(size.QuadPart);
}

std::size_t AppendFile::Write(char const* data, std::size_t size) const noexcept
{
    std::size_t done = 0;
    while (done < size)
    {
        DWORD const piece = static_cast<DWORD>(std::min(size - done, c_writeSize));
        DWORD written = 0;
        bool const isWritten = WriteFile(GetHandle(m_handle), data + done, piece, &written, nullptr) != 0;
        done += written;
        if (!isWritten || written == 0)
            break;
    }
    return done;
}

bool AppendFile::IsAt(std::wstring const& path) const
{
    std::intptr_t const there = Open(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (there == c_noHandle)
        return false;
    bool const isSame = IsSameFile(GetHandle(m_handle), GetHandle(there));
    CloseHandle(GetHandle(there));
    return isSame;
}

} // namespace Vek::Platform
