#include <Utilities/MultiLogger.h>

#include <Exceptions/ArgumentException.h>

#include <utility>

namespace Vek::Framework::Utilities
{

MultiLogger::MultiLogger() noexcept = default;

MultiLogger::~MultiLogger()
{
    // By index: a sink may still log, and even add, while it is destroyed. The ones before it are null then.
    for (std::size_t at = 0; at < m_sinks.size(); ++at)
        m_sinks[at].reset();
}

void MultiLogger::Add(std::unique_ptr<Logger> logger)
{
    if (logger == nullptr)
        throw ArgumentException();
    m_sinks.push_back(std::move(logger));
}

void MultiLogger::Log(Level level, std::wstring const& message)
{
    std::size_t const count = m_sinks.size(); // one that a sink adds gets the next message
    for (std::size_t at = 0; at < count; ++at)
    {
        if (m_sinks[at] != nullptr) // all are, until the end of this object
            m_sinks[at]->Log(level, message);
    }
}

} // namespace Vek::Framework::Utilities
