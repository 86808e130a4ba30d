#pragma once

#include <string>
#include <string_view>

namespace Invoicing
{

/// Replaces the file at `path` by these bytes or leaves it as it is (Utilities/FileReplacement.h). False with a German
/// text for the user.
bool TryReplaceFile(std::wstring const& path, std::string_view bytes, std::wstring& message);

/// What follows the last separator of the system.
std::wstring GetFileName(std::wstring const& path);

} // namespace Invoicing
