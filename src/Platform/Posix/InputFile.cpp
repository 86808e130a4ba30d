#include <Platform/InputFile.h>

#include <Platform/Posix/NativePath.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Vek::Platform
{

namespace
{

int GetDescriptor(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

bool IsFileOnDisk(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

InputFile::InputFile(std::wstring const& path)
    // Opening a pipe must not wait for its writer.
    : m_handle(open(GetNativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
{
    if (m_handle == c_noHandle || IsFileOnDisk(GetDescriptor(m_handle)))
        return;
    close(GetDescriptor(m_handle));
    m_handle = c_noHandle;
}

InputFile::~InputFile()
{
    if (m_handle != c_noHandle)
        close(GetDescriptor(m_handle));
}

std::optional<unsigned long long> InputFile::GetSize() const
{
    struct stat status = {};
    if (m_handle == c_noHandle || fstat(GetDescriptor(m_handle), &status) != 0)
        return std::nullopt;
    return static_cast<unsigned long long>(status.st_size);
}

std::optional<unsigned long long> InputFile::Read(void* target, unsigned long long size) const
{
    unsigned long long done = 0;
    while (done < size)
    {
        ssize_t const count = read(GetDescriptor(m_handle), static_cast<char*>(target) + done, size - done);
        if (count == 0)
            break;
        if (count > 0)
            done += static_cast<unsigned long long>(count);
        else if (errno != EINTR)
            return std::nullopt;
    }
    return done;
}

} // namespace Vek::Platform
