#include <Platform/AppendFile.h>

#include <Platform/Posix/NativePath.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Vek::Platform
{

namespace
{

constexpr mode_t c_everybody = 0666; // less what the process masks

int GetDescriptor(std::intptr_t handle) noexcept
{
    return static_cast<int>(handle);
}

/// All zero when the system does not tell.
struct stat GetStatus(std::intptr_t handle) noexcept
{
    struct stat status = {};
    fstat(GetDescriptor(handle), &status);
    return status;
}

} // namespace

AppendFile::AppendFile(std::wstring const& path)
    // Opening a pipe must not wait for its reader.
    : m_handle(open(GetNativePath(path).c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY,
                    c_everybody))
{
    if (m_handle == c_noHandle || IsOnDisk() || S_ISCHR(GetStatus(m_handle).st_mode))
        return;
    close(GetDescriptor(m_handle));
    m_handle = c_noHandle;
}

AppendFile::~AppendFile()
{
    if (m_handle != c_noHandle)
        close(GetDescriptor(m_handle));
}

bool AppendFile::IsOnDisk() const noexcept
{
    return S_ISREG(GetStatus(m_handle).st_mode);
}

unsigned long long AppendFile::GetSize() const noexcept
{
    return static_cast<unsigned long long>(GetStatus(m_handle).st_size);
}

std::size_t AppendFile::Write(char const* data, std::size_t size) const noexcept
{
    std::size_t done = 0;
    while (done < size)
    {
        ssize_t const count = write(GetDescriptor(m_handle), data + done, size - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    return done;
}

bool AppendFile::IsAt(std::wstring const& path) const
{
    struct stat const own = GetStatus(m_handle);
    struct stat there = {};
    return stat(GetNativePath(path).c_str(), &there) == 0 && there.st_dev == own.st_dev && there.st_ino == own.st_ino;
}

} // namespace Vek::Platform
