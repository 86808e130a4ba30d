#pragma once

#include <Utilities/Logger.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// Shows messages where a developer sees them: in the debugger's output on Windows (OutputDebugStringW), on standard
/// error on Linux, there in UTF-8.
///
/// Text:    one line for each message, "WARN text", as FileLogger writes it but without the time.
/// Errors:  none; when nobody listens, the message is gone.
/// Threads: any.
class VEK_API DebuggerLogger : public Logger
{
public:
    DebuggerLogger() noexcept;
    DebuggerLogger(DebuggerLogger const&) noexcept;
    DebuggerLogger& operator=(DebuggerLogger const&) noexcept;
    ~DebuggerLogger() override;

    void Log(Level level, std::wstring const& message) override;
};

} // namespace Vek::Framework::Utilities
