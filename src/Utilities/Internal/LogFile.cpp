#include <Utilities/Internal/LogFile.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/FileSystem.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::Utilities::Internal
{

namespace
{

constexpr std::size_t c_writeSize = 64 * 1024;
constexpr std::size_t c_keptLimit = 1024 * 1024; // of what cannot be written

} // namespace

LogFile::LogFile(std::wstring path, unsigned long long maximumSize, int keptFiles)
    : m_path(std::move(path)),
      m_maximumSize(maximumSize),
      m_keptFiles(keptFiles),
      m_putAsideAt(maximumSize)
{
    if (!Open())
        throw InvalidStateException();
    m_kept.reserve(c_writeSize);
}

LogFile::~LogFile()
{
    Flush(); // a destructor has nobody to tell
}

bool LogFile::HasRoom(std::size_t size) const noexcept
{
    return m_kept.size() + size <= c_keptLimit;
}

void LogFile::Append(std::string_view line)
{
    if (m_maximumSize != 0 && GetSize() + line.size() > m_putAsideAt && GetSize() > 0)
        PutAside();
    m_kept += line;
    if (m_kept.size() >= c_writeSize && !m_hasFailed)
        Flush();
}

bool LogFile::Flush() noexcept
{
    std::size_t const written = m_file->Write(m_kept.data(), m_kept.size());
    m_fileSize += written;
    m_hasFailed = written < m_kept.size();
    m_failedWrites += m_hasFailed ? 1 : 0;
    m_kept.erase(0, written);
    return !m_hasFailed;
}

void LogFile::Follow()
{
    if (m_file->IsOnDisk() && !m_file->IsAt(m_path))
        Open();
}

/// What is kept belongs to the full file. If that is not to be had now, it becomes larger than it should.
void LogFile::PutAside()
{
    bool const isOurs = m_file->IsOnDisk() && m_file->IsAt(m_path);
    bool const isDone = !m_hasFailed && Flush() && (!isOurs || RenameAll()) && Open();
    if (!isDone)
        m_putAsideAt = GetSize() + std::max(m_maximumSize / 10, 1ULL);
}

/// Names are moved up only as far as the first one that is free: what an earlier try has moved stays where it is.
bool LogFile::RenameAll() const
{
    int last = 1;
    while (last < m_keptFiles && Platform::QueryPath(GetName(last)) == Platform::PathState::Present)
        ++last;
    for (; last > 1; --last)
    {
        if (!Platform::RenameFile(GetName(last - 1), GetName(last)))
            return false;
    }
    return Platform::RenameFile(m_path, GetName(1));
}

std::wstring LogFile::GetName(int number) const
{
    return m_path + L"." + std::to_wstring(number);
}

/// On failure the file that was open stays so.
bool LogFile::Open()
{
    auto file = std::make_unique<Platform::AppendFile>(m_path);
    if (!file->IsOpen())
        return false;
    m_fileSize = file->IsOnDisk() ? file->GetSize() : 0;
    m_putAsideAt = m_maximumSize;
    m_file = std::move(file);
    return true;
}

} // namespace Vek::Framework::Utilities::Internal
