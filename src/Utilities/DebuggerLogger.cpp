#include <Utilities/DebuggerLogger.h>

#include <Platform/DebuggerOutput.h>
#include <Utilities/Internal/LogText.h>

namespace Vek::Framework::Utilities
{

DebuggerLogger::DebuggerLogger() noexcept = default;
DebuggerLogger::DebuggerLogger(DebuggerLogger const&) noexcept = default;
DebuggerLogger& DebuggerLogger::operator=(DebuggerLogger const&) noexcept = default;
DebuggerLogger::~DebuggerLogger() = default;

void DebuggerLogger::Log(Level level, std::wstring const& message)
{
    std::string line;
    Internal::AppendLogText(line, level, message);
    line += '\n';
    Platform::WriteToDebugger(line);
}

} // namespace Vek::Framework::Utilities
