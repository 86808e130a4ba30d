#pragma once

#include <Utilities/Logger.h>

#include <string>

namespace Vek::Framework::Utilities::Internal
{

/// Appends the level's name, a blank and the message in UTF-8, as one line without its end: line breaks and other
/// control characters are written as \n, \r, \t, \x1B or \u0085, a lone surrogate and what is no unit as U+FFFD.
void AppendLogText(std::string& line, Logger::Level level, std::wstring const& message);

} // namespace Vek::Framework::Utilities::Internal
