#pragma once

#include <string>

namespace Vek::Platform
{

/// Gives UTF-8 text without 0 bytes to the debugger, or to what listens in its place; on Linux to standard error.
void WriteToDebugger(std::string const& text);

} // namespace Vek::Platform
