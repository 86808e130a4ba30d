#pragma once

#include <filesystem>
#include <string>

namespace Vek::Platform
{

/// `path` in UTF-8; empty if it holds a 0 unit or is no well-formed UTF-16.
std::filesystem::path GetNativePath(std::wstring const& path);

/// The reverse; empty if the path is no UTF-8.
std::wstring GetWidePath(std::filesystem::path const& path);

} // namespace Vek::Platform
