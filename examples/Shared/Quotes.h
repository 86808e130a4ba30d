#pragma once

#include <string>

namespace Example
{

/// The position of the first quotation mark that begins a value, or npos. Separated values have no quotes here, but
/// spreadsheet programs write them: who does not look for them cuts "a;b" in two.
std::size_t FindQuotedValue(std::wstring const& line, wchar_t separator);

} // namespace Example
