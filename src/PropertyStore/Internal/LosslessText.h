#pragma once

#include <string>

namespace Vek::Framework::PropertyStore::Internal
{

/// Wide text as bytes of Windows-1252, and back without loss: what has no byte of its own, control characters, blanks
/// at both ends and the backslash are written with a backslash. False for a unit above 0xFFFF, which is none of UTF-16;
/// `bytes` is unchanged then.
bool TryToLosslessBytes(std::wstring const& text, std::string& bytes);

/// False when it is no such text; `text` is unchanged then.
bool TryFromLosslessBytes(std::string const& bytes, std::wstring& text);

} // namespace Vek::Framework::PropertyStore::Internal
