#pragma once

#include <Utilities/Logger.h>
#include <VekApi.h>

#include <memory>
#include <vector>

namespace Vek::Framework::Utilities
{

/// Hands each message to any number of sinks, in the order in which they were added.
///
/// Ownership: it owns the sinks and destroys them first to last.
/// Errors:    what a sink throws passes through, and the sinks behind it do not get the message. SynchronizedLogger
///            keeps one sink's failure from the others.
/// Callbacks: a sink may add sinks, which get the next message. It may log here from its own Log: that message goes to
///            all sinks, itself included, before the ones behind it get the outer message. Nothing but the sink ends
///            this, so it must not answer its own message with another; SynchronizedLogger ends it by itself.
/// Threads:   several may log at once if every sink allows it; none may while a sink is added.
class VEK_API MultiLogger : public Logger
{
public:
    MultiLogger() noexcept;
    MultiLogger(MultiLogger const&) = delete;
    MultiLogger& operator=(MultiLogger const&) = delete;
    ~MultiLogger() override;

    /// Throws ArgumentException for a null pointer.
    void Add(std::unique_ptr<Logger> logger);

    void Log(Level level, std::wstring const& message) override;

private:
    std::vector<std::unique_ptr<Logger>> m_sinks;
};

} // namespace Vek::Framework::Utilities
