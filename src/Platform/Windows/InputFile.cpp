#include <Platform/InputFile.h>

#include <Platform/Windows/NativePath.h>

#include <Platform/Windows/WindowsHeader.h>

#include <algorithm>

namespace Vek::Platform
{

namespace
{

constexpr unsigned long long c_readSize = 1ULL << 30U; // the system counts in 32 bits

HANDLE GetHandle(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

} // namespace

InputFile::InputFile(std::wstring const& path)
    : m_handle(reinterpret_cast<std::intptr_t>(CreateFileW(GetNativePath(path).c_str(), GENERIC_READ,
                                                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                                           FILE_FLAG_SEQUENTIAL_SCAN, nullptr)))
{
    if (m_handle == c_noHandle || GetFileType(GetHandle(m_handle)) == FILE_TYPE_DISK)
        return;
    CloseHandle(GetHandle(m_handle));
    m_handle = c_noHandle;
}

InputFile::~InputFile()
{
    if (m_handle != c_noHandle)
        CloseHandle(GetHandle(m_handle));
}

std::optional<unsigned long long> InputFile::GetSize() const
{
    LARGE_INTEGER size{};
    if (m_handle == c_noHandle || GetFileSizeEx(GetHandle(m_handle), &size) == 0)
        return std::nullopt;
    return static_cast<unsigned long long>(size.QuadPart);
}

std::optional<unsigned long long> InputFile::Read(void* target, unsigned long long size) const
{
    unsigned long long done = 0;
    for (DWORD read = 1; done < size && read != 0; done += read)
    {
        DWORD const piece = static_cast<DWORD>(std::min(size - done, c_readSize));
        if (ReadFile(GetHandle(m_handle), static_cast<char*>(target) + done, piece, &read, nullptr) == 0)
            return std::nullopt;
    }
    return done;
}

} // namespace Vek::Platform
