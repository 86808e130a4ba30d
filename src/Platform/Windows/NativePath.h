#pragma once

#include <string>

namespace Vek::Platform
{

/// `path` as the system takes it: empty if it holds a 0 unit, in the extended syntax if it is too long for the usual
/// one.
std::wstring GetNativePath(std::wstring const& path);

} // namespace Vek::Platform
