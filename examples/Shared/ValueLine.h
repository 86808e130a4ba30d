#pragma once

#include "Amount.h"

#include <string>
#include <vector>

namespace Example
{

/// Splits a line of so many values, each ended by a semicolon (the last one need not be), a backslash taking the next
/// unit as it is. Values behind the first `required` ones may be left out and are empty then. False, with the reason in
/// `fault`, for any other line.
bool TrySplitLine(std::wstring const& line, std::size_t required, std::size_t count, std::vector<std::wstring>& values,
                  Fault& fault);

/// A fault in one value as a fault of its line: the column is named, the value quoted, and the position is that in the
/// line.
Fault InLine(std::wstring const& line, std::size_t column, std::wstring const& columnName, std::wstring const& value,
             Fault const& fault);

} // namespace Example
