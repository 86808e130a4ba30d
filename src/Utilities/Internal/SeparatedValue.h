#pragma once

#include <Utilities/CommaSeparatedValueViewReader.h>

#include <bit>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// As LookAhead, where there are units that were not looked at.
bool LookAtUnits(std::wstring_view text, wchar_t separator, Internal::SeparatedCursor& cursor) noexcept;

/// Looks at the next units until there is a stop, a separator or a backslash, among them; false if there is none up to
/// the end. To be called when those that were seen are passed.
inline bool LookAhead(std::wstring_view text, wchar_t separator, Internal::SeparatedCursor& cursor) noexcept
{
    return cursor.ahead < text.size() && LookAtUnits(text, separator, cursor);
}

/// The next of the stops in sight, of which there must be one.
inline unsigned long long GetStop(Internal::SeparatedCursor const& cursor) noexcept
{
    return cursor.ahead - Internal::SeparatedCursor::c_reach + static_cast<unsigned>(std::countr_zero(cursor.stops));
}

/// The next stop, or the end of the text.
inline unsigned long long FindStop(std::wstring_view text, wchar_t separator,
                                   Internal::SeparatedCursor& cursor) noexcept
{
    bool const isInSight = cursor.stops != 0 || LookAhead(text, separator, cursor);
    return isInSight ? GetStop(cursor) : text.size();
}

/// Passes the stop that was found.
inline void PassStop(unsigned long long stop, Internal::SeparatedCursor& cursor) noexcept
{
    cursor.position = stop + 1;
    cursor.stops &= cursor.stops - 1;
}

/// Reads the value at the cursor, its escapes taken off, and moves on to what follows its separator, or to the end of
/// the text. A backslash that ends the text throws std::out_of_range ("invalid string position"): `value` is all before
/// it then, and the cursor is at the end.
void ReadEscapedValue(std::wstring_view text, wchar_t separator, Internal::SeparatedCursor& cursor,
                      std::wstring& value);

} // namespace Vek::Framework::Utilities
