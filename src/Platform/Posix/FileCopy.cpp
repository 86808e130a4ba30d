#include <Platform/FileSystem.h>

#include <Platform/Posix/NativePath.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Vek::Platform
{

namespace
{

/// An open file, or none; closed in the end.
class Descriptor
{
public:
    explicit Descriptor(int number) noexcept : m_number(number) {}
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;
    ~Descriptor() { Close(); }

    int Get() const noexcept { return m_number; }
    bool IsOpen() const noexcept { return m_number != -1; }

    /// False when the system could not write what it still held back.
    bool Close() noexcept { return m_number == -1 || close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

// Opening a pipe must not wait for its other end.
constexpr int c_flags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// Nothing for what is no file on disk.
std::optional<struct stat> GetFileStatus(Descriptor const& file)
{
    struct stat status = {};
    bool const isFile = file.IsOpen() && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? std::optional(status) : std::nullopt;
}

bool IsSameFile(struct stat const& a, struct stat const& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool WriteAll(Descriptor const& file, char const* bytes, ssize_t size)
{
    while (size > 0)
    {
        ssize_t const written = write(file.Get(), bytes, static_cast<std::size_t>(size));
        if (written < 0 && errno != EINTR)
            return false;
        bytes += std::max<ssize_t>(written, 0);
        size -= std::max<ssize_t>(written, 0);
    }
    return true;
}

bool CopyByReading(Descriptor const& source, Descriptor const& target)
{
    char piece[16384];
    while (true)
    {
        ssize_t const count = read(source.Get(), piece, sizeof piece);
        if (count == 0)
            return true;
        if (count < 0 ? errno != EINTR : !WriteAll(target, piece, count))
            return false;
    }
}

/// To the end of the source as reading finds it. The system's own copying is quicker, but stops at the size that it
/// believes in, and not every file system has it; reading goes on from wherever it stopped.
bool CopyContent(Descriptor const& source, Descriptor& target, struct stat const& status)
{
    constexpr std::size_t c_pieceSize = 1U << 30U;
    while (copy_file_range(source.Get(), nullptr, target.Get(), nullptr, c_pieceSize, 0) > 0)
        ;
    bool const isCopied = CopyByReading(source, target);
    // Some file systems keep no permissions: the content counts.
    [[maybe_unused]] int const result = fchmod(target.Get(), status.st_mode & 0777U);
    return target.Close() && isCopied;
}

bool Overwrite(Descriptor const& source, std::string const& path, struct stat const& status)
{
    Descriptor target(open(path.c_str(), O_WRONLY | c_flags));
    std::optional<struct stat> const present = GetFileStatus(target);
    return present && !IsSameFile(*present, status) && ftruncate(target.Get(), 0) == 0 &&
           CopyContent(source, target, status);
}

} // namespace

bool CopyWholeFile(std::wstring const& source, std::wstring const& target, bool overwrite)
{
    Descriptor const from(open(GetNativePath(source).c_str(), O_RDONLY | c_flags));
    std::optional<struct stat> const status = GetFileStatus(from);
    if (!status)
        return false;
    std::string const path = GetNativePath(target).native();
    Descriptor to(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | c_flags, S_IRUSR | S_IWUSR));
    if (!to.IsOpen())
        return overwrite && errno == EEXIST && Overwrite(from, path, *status);
    if (CopyContent(from, to, *status))
        return true;
    unlink(path.c_str());
    return false;
}

} // namespace Vek::Platform
