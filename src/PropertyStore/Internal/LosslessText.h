#pragma once

#include <string>

namespace Vek::Framework::PropertyStore::Internal
{

/// Wide text as bytes of Windows-1252, and back without loss: what has no byte of its own, control characters, blanks
/// at both ends and the backslash are written with a backslash.
std::string ToLosslessBytes(std::wstring const& text);

/// False when it is no such text; `text` is unchanged then.
bool TryFromLosslessBytes(std::string const& bytes, std::wstring& text);

} // namespace Vek::Framework::PropertyStore::Internal
