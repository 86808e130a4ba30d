#pragma once

#include <string>

namespace Vek::Platform
{

/// The full path of the running program, whole also when it is long; empty when the system does not say.
std::wstring GetProgramPath();

/// What stands between the components of that path.
wchar_t GetPathSeparator() noexcept;

} // namespace Vek::Platform
