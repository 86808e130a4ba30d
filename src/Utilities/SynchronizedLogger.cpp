#include <Utilities/SynchronizedLogger.h>

#include <Exceptions/ArgumentException.h>

#include <utility>

namespace Vek::Framework::Utilities
{

SynchronizedLogger::SynchronizedLogger() = default;

SynchronizedLogger::~SynchronizedLogger()
{
    for (Sink& sink : m_sinks)
    {
        sink.isRunning = true; // what it still logs reaches the others only
        sink.logger.reset();
    }
}

void SynchronizedLogger::Add(std::unique_ptr<Logger> logger)
{
    if (logger == nullptr)
        throw ArgumentException();
    std::lock_guard const lock(m_mutex);
    m_sinks.push_back({ std::move(logger) });
}

void SynchronizedLogger::Log(Level level, std::wstring const& message)
{
    std::lock_guard const lock(m_mutex);
    std::size_t left = m_sinks.size(); // one that a sink adds gets the next message
    for (auto sink = m_sinks.begin(); left > 0; ++sink, --left)
    {
        if (!sink->isRunning)
            LogTo(*sink, level, message);
    }
}

void SynchronizedLogger::LogTo(Sink& sink, Level level, std::wstring const& message)
{
    sink.isRunning = true;
    try
    {
        sink.logger->Log(level, message);
    }
    catch (...)
    {
        ++m_failuresCount;
        m_lastFailure = std::current_exception();
    }
    sink.isRunning = false;
}

long long SynchronizedLogger::GetFailuresCount() const
{
    std::lock_guard const lock(m_mutex);
    return m_failuresCount;
}

std::exception_ptr SynchronizedLogger::GetLastFailure() const
{
    std::lock_guard const lock(m_mutex);
    return m_lastFailure;
}

} // namespace Vek::Framework::Utilities
