#pragma once

#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// Appends the value of a separated text that begins or goes on at `position` to `value`, its escapes taken off, and
/// moves `position` to what follows its separator, or to the end of the text. A backslash that ends the text throws
/// std::out_of_range ("invalid string position") after all before it was appended, the position at the end.
void AppendSeparatedValue(std::wstring_view text, wchar_t separator, unsigned long long& position, std::wstring& value);

} // namespace Vek::Framework::Utilities
