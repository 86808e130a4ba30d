#include <Platform/FileReplacement.h>

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

bool WriteAll(int file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        ssize_t const written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return fsync(file) == 0;
}

} // namespace

NewFile WriteNewFile(std::wstring const& path, std::string_view bytes)
{
    std::string const native = GetNativePath(path).native();
    int const file = open(native.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, c_everybody);
    if (file < 0)
        return errno == EEXIST ? NewFile::Exists : NewFile::NotCreated;
    bool const isWritten = WriteAll(file, bytes);
    if (close(file) == 0 && isWritten) // some file systems tell here that the disk is full
        return NewFile::Written;
    unlink(native.c_str());
    return NewFile::NotWritten;
}

bool IsFileOrMissing(std::wstring const& path)
{
    struct stat status = {};
    return stat(GetNativePath(path).c_str(), &status) != 0 || S_ISREG(status.st_mode);
}

bool MoveOver(std::wstring const& source, std::wstring const& target)
{
    std::string const from = GetNativePath(source).native();
    std::string const to = GetNativePath(target).native();
    struct stat status = {};
    if (stat(to.c_str(), &status) == 0 && chmod(from.c_str(), status.st_mode & 07777) != 0)
        return false;
    return rename(from.c_str(), to.c_str()) == 0;
}

} // namespace Vek::Platform
