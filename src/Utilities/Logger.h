#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// A sink for messages with a level. Derive from it and override Log.
///
/// Text:    UTF-16, passed on as it is; what a sink makes of line breaks and of bad units is its own affair.
/// Errors:  what a sink throws reaches the one who logs, unless a sink in between says otherwise.
/// Threads: as the sink says.
class VEK_API Logger
{
public:
    /// Values above Error are levels of the program's own, more severe than Error, and are passed on unchanged.
    enum class Level : int
    {
        Info = 0,
        Warn = 1,
        Error = 2,
    };

    Logger() noexcept;
    Logger(Logger const&) noexcept;
    Logger& operator=(Logger const&) noexcept;
    virtual ~Logger();

    virtual void Log(Level level, std::wstring const& message) = 0;

    void Info(std::wstring const& message);
    void Warn(std::wstring const& message);
    void Error(std::wstring const& message);
};

} // namespace Vek::Framework::Utilities
