#pragma once

#include <Utilities/IntRange.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// The values as people write the pages to print: L"1-3, 7". An empty set is an empty text.
VEK_API std::wstring FormatRange(IntRange const& range);

enum class IntRangeError
{
    None = 0,
    MissingNumber = 1, // the text ends, or a separator follows, where a number must stand: "1-", "1,,2", "1,"
    WrongUnit = 2,     // a unit that does not belong at its place: "abc", "1-2-3", "1 2"
    TooLarge = 3,      // no int is that large
    Reversed = 4,      // "7-3"
};

/// What is wrong, and where: the index of the unit or of the number's first, or the text's length if something is
/// missing at its end.
struct IntRangeFault
{
    IntRangeError error = IntRangeError::None;
    std::size_t position = 0;
};

/// Reads numbers and ranges such as L"1-3, 7". Entries are separated by comma or semicolon, ranges are written with a
/// hyphen or an en dash, blanks and tabs may stand around both; a number may begin with a hyphen, which makes it
/// negative: L"-3--1". Order and overlaps do not matter. A text of blanks is an empty set.
///
/// On failure, `range` is unchanged and `fault` tells the first one; on success, `range` holds what the text says and
/// nothing else, and `fault` has none. Throws std::bad_alloc as IntRange does; `range` is unchanged then.
VEK_API bool TryParseRange(std::wstring_view text, IntRange& range, IntRangeFault& fault);

} // namespace Vek::Framework::Utilities
