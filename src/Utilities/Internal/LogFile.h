#pragma once

#include <Platform/AppendFile.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities::Internal
{

/// The lines of a log on their way to its file: kept until they are written, and the file put aside when it is full.
class LogFile
{
public:
    /// Throws InvalidStateException when the file cannot be opened. `maximumSize` 0 keeps one file for ever.
    LogFile(std::wstring path, unsigned long long maximumSize, int keptFiles);
    LogFile(LogFile const&) = delete;
    LogFile& operator=(LogFile const&) = delete;
    ~LogFile();

    /// Tries again what could not be written the last time; false when that fails again.
    bool TryAgain() noexcept { return !m_hasFailed || Flush(); }

    /// Whether there is so little of it that `size` bytes more may be kept.
    bool HasRoom(std::size_t size) const noexcept;

    void Append(std::string_view line);

    /// Writes all that is kept. False when that fails.
    bool Flush() noexcept;

    /// Opens the file anew if its path does not lead to it any more.
    void Follow();

    long long GetFailedWritesCount() const noexcept { return m_failedWrites; }

private:
    unsigned long long GetSize() const noexcept { return m_fileSize + m_kept.size(); }
    void PutAside();
    bool RenameAll() const;
    std::wstring GetName(int number) const;
    bool Open();

    std::wstring m_path;
    unsigned long long m_maximumSize;
    int m_keptFiles;
    std::unique_ptr<Platform::AppendFile> m_file;
    unsigned long long m_fileSize = 0; // what others write does not count
    unsigned long long m_putAsideAt;   // the size
    std::string m_kept;
    bool m_hasFailed = false; // the last time
    long long m_failedWrites = 0;
};

} // namespace Vek::Framework::Utilities::Internal
