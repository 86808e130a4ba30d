#pragma once

#include <Utilities/Logger.h>
#include <VekApi.h>

#include <exception>
#include <list>
#include <memory>
#include <mutex>

namespace Vek::Framework::Utilities
{

/// Hands each message to any number of sinks as MultiLogger does, from any thread, one message at a time, and keeps a
/// failing sink from stopping the others and the one who logs.
///
/// Ownership: it owns the sinks and destroys them first to last.
/// Errors:    Log throws nothing that a sink throws: it is counted, and the last one is kept.
/// Callbacks: a sink may add sinks, which get the next message, and may log here from its own Log: the message goes
///            to the sinks that are not running, so this ends whatever they do.
/// Threads:   any, for all operations. A sink that waits for another thread which logs here waits for ever.
class VEK_API SynchronizedLogger : public Logger
{
public:
    SynchronizedLogger();
    SynchronizedLogger(SynchronizedLogger const&) = delete;
    SynchronizedLogger& operator=(SynchronizedLogger const&) = delete;
    ~SynchronizedLogger() override;

    /// Throws ArgumentException for a null pointer.
    void Add(std::unique_ptr<Logger> logger);

    void Log(Level level, std::wstring const& message) override;

    /// How many times a sink has thrown, and what it was the last time; null if none has.
    long long GetFailuresCount() const;
    std::exception_ptr GetLastFailure() const;

private:
    struct Sink
    {
        std::unique_ptr<Logger> logger;
        bool isRunning = false;
    };

    VEK_LOCAL void LogTo(Sink& sink, Level level, std::wstring const& message);

    mutable std::recursive_mutex m_mutex;
    std::list<Sink> m_sinks; // a sink stays where it is while others come
    long long m_failuresCount = 0;
    std::exception_ptr m_lastFailure;
};

} // namespace Vek::Framework::Utilities
