#pragma once

#include <Utilities/Logger.h>
#include <VekApi.h>

#include <memory>

namespace Vek::Framework::Utilities
{

/// Passes messages from a level up on to another sink, and drops those below it.
///
/// Ownership: it owns the sink.
/// Errors, threads: those of the sink.
class VEK_API LevelFilterLogger : public Logger
{
public:
    /// Throws ArgumentException for a null pointer.
    LevelFilterLogger(Level lowest, std::unique_ptr<Logger> sink);
    LevelFilterLogger(LevelFilterLogger const&) = delete;
    LevelFilterLogger& operator=(LevelFilterLogger const&) = delete;
    ~LevelFilterLogger() override;

    void Log(Level level, std::wstring const& message) override;

private:
    Level m_lowest;
    std::unique_ptr<Logger> m_sink;
};

} // namespace Vek::Framework::Utilities
