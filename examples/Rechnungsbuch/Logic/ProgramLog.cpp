#include "ProgramLog.h"

#include <Exceptions/InvalidStateException.h>
#include <Utilities/DebuggerLogger.h>
#include <Utilities/LevelFilterLogger.h>
#include <Utilities/TimeMeasureContainer.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

namespace Invoicing
{

namespace
{

constexpr unsigned long long c_maximumSize = 1'000'000;
constexpr int c_keptFiles = 2;

} // namespace

ProgramLog::ProgramLog(std::wstring const& path, std::function<DateTime()> clock)
{
    m_log.Add(std::make_unique<LevelFilterLogger>(Logger::Level::Warn, std::make_unique<DebuggerLogger>()));
    try
    {
        FileLoggerOptions options{ c_maximumSize, c_keptFiles, std::move(clock) };
        m_log.Add(std::make_unique<FileLogger>(path, std::move(options)));
    }
    catch (Vek::InvalidStateException const&)
    {
        m_log.Warn(L"Das Protokoll " + path + L" kann nicht ge\u00f6ffnet werden.");
    }
}

ProgramLog::~ProgramLog() = default;

void ProgramLog::LogTimes()
{
    // The file shows a line break within a message as \n.
    std::wstring const results = WStringHelper::GetUTF16FromWindows1252(TimeMeasureContainer::GetResults());
    for (std::size_t start = 0, end = 0; (end = results.find(L'\n', start)) != std::wstring::npos; start = end + 1)
        m_log.Info(results.substr(start, end - start));
}

} // namespace Invoicing
