#include <Utilities/FileLogger.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/Internal/LogFile.h>
#include <Utilities/Internal/LogText.h>

#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr unsigned long long c_ticksPerSecond = 10'000'000;

void AppendDigits(std::string& text, unsigned value, unsigned digits)
{
    std::string const number = std::to_string(value);
    text.append(number.size() < digits ? digits - number.size() : 0, '0').append(number);
}

/// "2024-10-27 02:30:00"
std::string FormatSecond(DateTime time)
{
    DateTimeComponentInfo const fields = time.GetComponents();
    std::string text;
    AppendDigits(text, static_cast<unsigned>(fields.GetYear()), 4);
    AppendDigits(text += '-', fields.GetMonth(), 2);
    AppendDigits(text += '-', fields.GetDayOfMonth(), 2);
    AppendDigits(text += ' ', fields.GetHour(), 2);
    AppendDigits(text += ':', fields.GetMinute(), 2);
    AppendDigits(text += ':', fields.GetSecond(), 2);
    return text;
}

std::unique_ptr<Internal::LogFile> OpenFile(std::wstring const& path, FileLoggerOptions const& options)
{
    if (options.maximumSize != 0 && options.keptFiles < 1)
        throw ArgumentException();
    return std::make_unique<Internal::LogFile>(path, options.maximumSize, options.keptFiles);
}

} // namespace

FileLogger::FileLogger(std::wstring const& path, FileLoggerOptions options)
    : m_file(OpenFile(path, options)),
      m_clock(std::move(options.clock))
{
}

FileLogger::~FileLogger() = default;

void FileLogger::Log(Level level, std::wstring const& message)
{
    DateTime const time = m_clock ? m_clock() : DateTime::Now();
    bool const isNewSecond = StartSecond(time);
    if (isNewSecond)
        m_file->Follow();
    bool const isWritable = m_file->TryAgain();
    if (isWritable)
        TellLostMessages(time);
    Compose(time, level, message);
    if (!isWritable && !m_file->HasRoom(m_line.size()))
    {
        ++m_lostMessages;
        return;
    }
    m_file->Append(m_line);
    if (isWritable && (level >= Level::Warn || isNewSecond))
        m_file->Flush();
}

/// The text of a second is made once for all messages in it.
bool FileLogger::StartSecond(DateTime time)
{
    unsigned long long const second = time.GetTicks() / c_ticksPerSecond;
    if (second == m_second && !m_timeText.empty())
        return false;
    m_timeText = FormatSecond(time);
    m_second = second;
    return true;
}

void FileLogger::Compose(DateTime time, Level level, std::wstring const& message)
{
    auto const millisecond = static_cast<unsigned>(time.GetTicks() % c_ticksPerSecond / 10'000);
    char const fraction[] = { '.', static_cast<char>('0' + millisecond / 100),
                              static_cast<char>('0' + millisecond / 10 % 10), static_cast<char>('0' + millisecond % 10),
                              ' ' };
    m_line.assign(m_timeText).append(fraction, sizeof fraction);
    Internal::AppendLogText(m_line, level, message);
    m_line += '\n';
}

void FileLogger::TellLostMessages(DateTime time)
{
    if (m_toldMessages == m_lostMessages)
        return;
    Compose(time, Level::Warn,
            std::to_wstring(m_lostMessages - m_toldMessages) + L" messages are lost: the file could not be written");
    m_file->Append(m_line);
    m_toldMessages = m_lostMessages;
}

bool FileLogger::Flush()
{
    return m_file->Flush();
}

long long FileLogger::GetFailedWritesCount() const noexcept
{
    return m_file->GetFailedWritesCount();
}

long long FileLogger::GetLostMessagesCount() const noexcept
{
    return m_lostMessages;
}

} // namespace Vek::Framework::Utilities
