#pragma once

#include <Utilities/Decimal.h>

#include <cstddef>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// Reads what Decimal::FromString reads and says whether it could: there, bad text and "nan" are the same.
///
/// `position` is the first unit that does not belong where it stands, from 0, or the length of a text that ended too
/// early; also that length on success. A word is bad from its first letter. `value` is unchanged on failure. Nothing is
/// allocated. Throws InvalidStateException for a separator that is a surrogate pair; both are unchanged then.
VEK_API bool TryFromString(std::wstring_view text, CodePoint const& separator, Decimal& value, std::size_t& position);

} // namespace Vek::Framework::Utilities
