#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Vek::Platform
{

/// The full path of the running program, whole also when it is long; empty when the system does not say.
std::wstring GetProgramPath();

/// What stands between the components of that path.
wchar_t GetPathSeparator() noexcept;

/// What stands behind the program's name on its command line, as the system's own programs cut it up; nothing when the
/// system does not say, or when it is no text.
std::optional<std::vector<std::wstring>> GetProgramArguments();

} // namespace Vek::Platform
