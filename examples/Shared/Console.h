#pragma once

#include <string>

namespace Example
{

/// Makes standard output carry exactly the bytes that are written, line ends included, and a Windows console
/// show them as UTF-8. Call it first.
void PrepareConsole();

/// Writes one line as UTF-8, ended by a line feed, the same bytes on every system.
void PrintLine(std::wstring const& text);

} // namespace Example
