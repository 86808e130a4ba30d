#pragma once

#include <Utilities/FileLogger.h>
#include <Utilities/MultiLogger.h>

#include <functional>
#include <string>

namespace Invoicing
{

/// The log of the program: everything to a file of at most 1 MB with two predecessors, warnings to the debugger as
/// well. When the file cannot be opened, the debugger alone is told.
class ProgramLog
{
public:
    /// The file's clock is for tests; empty for the system's.
    explicit ProgramLog(std::wstring const& path, std::function<Vek::Framework::Utilities::DateTime()> clock = {});
    ProgramLog(ProgramLog const&) = delete;
    ProgramLog& operator=(ProgramLog const&) = delete;
    ~ProgramLog();

    Vek::Framework::Utilities::Logger& GetLogger() noexcept { return m_log; }

    /// Logs what was measured so far, a message for each name: for the end of the program.
    void LogTimes();

private:
    Vek::Framework::Utilities::MultiLogger m_log;
};

} // namespace Invoicing
