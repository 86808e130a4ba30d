#include <Utilities/Logger.h>

namespace Vek::Framework::Utilities
{

Logger::Logger() noexcept = default;
Logger::Logger(Logger const&) noexcept = default;
Logger& Logger::operator=(Logger const&) noexcept = default;
Logger::~Logger() = default;

void Logger::Info(std::wstring const& message)
{
    Log(Level::Info, message);
}

void Logger::Warn(std::wstring const& message)
{
    Log(Level::Warn, message);
}

void Logger::Error(std::wstring const& message)
{
    Log(Level::Error, message);
}

} // namespace Vek::Framework::Utilities
