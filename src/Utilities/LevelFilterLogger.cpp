#include <Utilities/LevelFilterLogger.h>

#include <Exceptions/ArgumentException.h>

#include <utility>

namespace Vek::Framework::Utilities
{

LevelFilterLogger::LevelFilterLogger(Level lowest, std::unique_ptr<Logger> sink)
    : m_lowest(lowest),
      m_sink(std::move(sink))
{
    if (m_sink == nullptr)
        throw ArgumentException();
}

LevelFilterLogger::~LevelFilterLogger() = default;

void LevelFilterLogger::Log(Level level, std::wstring const& message)
{
    if (level >= m_lowest)
        m_sink->Log(level, message);
}

} // namespace Vek::Framework::Utilities
