#pragma once

#include <Utilities/DateTime.h>
#include <Utilities/Logger.h>
#include <VekApi.h>

#include <functional>
#include <memory>
#include <string>

namespace Vek::Framework::Utilities
{

namespace Internal
{
class LogFile;
}

struct FileLoggerOptions
{
    /// In bytes; a file that a message would take beyond it is put aside first. 0: the file grows for ever.
    unsigned long long maximumSize = 0;
    /// How many files put aside are kept, from 1: "name.1", the newest, to "name.n".
    int keptFiles = 5;
    /// What the messages' time is; empty for DateTime::Now.
    std::function<DateTime()> clock;
};

/// Appends messages to a file, in UTF-8 and one line for each:
///
///     2024-10-27 02:30:00.123 WARN text
///
/// Text:    the time on the local clock; INFO, WARN, ERROR, or LEVEL and the number for other levels. Each line ends
///          with a line feed. Line breaks and other control characters are written visibly, as \n, \r, \t, \x1B or
///          \u0085, and U+2028 and U+2029 alike; a lone surrogate becomes U+FFFD. A backslash stays as it is: paths can
///          be read, but not every text can be told from one that looks like a control character.
/// Writing: lines are kept in memory and written when 64 KiB have come together, with each message from Warn up, with
///          the first one in another second, by Flush and by the destructor.
/// Others:  may read the file, and write, rename and delete it. If the path leads elsewhere or nowhere, a file of the
///          name is opened anew, which is looked at with the first message in another second.
/// Failure: what cannot be written, on a full disk say, is counted, kept and tried again with the next message. From
///          1 MiB on, further messages are counted and lost, and a line says so as soon as there is room.
/// Rotation: "name" becomes "name.1", that becomes "name.2" and so on, and what was "name.n" is gone. When the file
///          cannot be renamed, since another program holds it open, it is gone on with and tried again a tenth of the
///          maximum later. A single message may be longer than the maximum. Devices are not rotated.
/// Paths:   as in FileHelper; directories and pipes do not open.
/// Errors:  what the clock throws passes through, and the message is not written.
/// Threads: one at a time; SynchronizedLogger makes it any.
class VEK_API FileLogger : public Logger
{
public:
    /// Throws InvalidStateException when the file can be neither opened nor made, ArgumentException when files shall be
    /// put aside and none is kept.
    explicit FileLogger(std::wstring const& path, FileLoggerOptions options = {});
    FileLogger(FileLogger const&) = delete;
    FileLogger& operator=(FileLogger const&) = delete;
    ~FileLogger() override;

    void Log(Level level, std::wstring const& message) override;

    /// False when something could not be written.
    bool Flush();

    long long GetFailedWritesCount() const noexcept;
    long long GetLostMessagesCount() const noexcept;

private:
    VEK_LOCAL bool StartSecond(DateTime time);
    VEK_LOCAL void Compose(DateTime time, Level level, std::wstring const& message);
    VEK_LOCAL void TellLostMessages(DateTime time);

    std::unique_ptr<Internal::LogFile> m_file;
    std::function<DateTime()> m_clock;
    std::string m_line;
    std::string m_timeText;          // of m_second, without the fraction
    unsigned long long m_second = 0; // of the last message, from 1601
    long long m_lostMessages = 0;
    long long m_toldMessages = 0; // of those lost
};

} // namespace Vek::Framework::Utilities
