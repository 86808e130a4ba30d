#pragma once

#include <string>

namespace Vek::Framework::IParser::Native::Internal
{

/// True when strtod, in the current C locale, takes all of `text` and its value is in range; stores the value then.
/// A text with an embedded zero byte is no number.
bool TryGetNumber(std::string const& text, double& number);

} // namespace Vek::Framework::IParser::Native::Internal
