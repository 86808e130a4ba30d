#pragma once

#include <Utilities/Decimal.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// What stands between groups of three digits before the comma.
enum class AmountGrouping
{
    None,
    FullStop,           // 1.234.567,50
    NoBreakSpace,       // U+00A0
    NarrowNoBreakSpace, // U+202F
};

/// The amount as Austria and Germany write it, rounded half away from zero to `fractionDigits` behind the comma: 1234.5
/// is 1.234,50. A zero has no sign; without fraction digits there is no comma.
/// Throws ArgumentException for a NaN, an Infinity, a negative count and for what takes more than 34 digits then,
/// EnumOutOfRangeException for another grouping.
VEK_API std::wstring FormatAmount(Decimal const& amount, AmountGrouping grouping = AmountGrouping::FullStop,
                                  int fractionDigits = 2);

enum class AmountError
{
    None = 0,
    MissingDigit = 1,  // the text ends where a digit must stand: "", "-", "12,"
    WrongUnit = 2,     // a unit that no amount has at this place: "abc", "1,2,3", ",50", a blank
    WrongGroup = 3,    // a mark behind or before another number of digits: "12.50", "1.23.456", "1234.567"
    MixedGrouping = 4, // a mark unlike the first one
    MissingComma = 5,  // "1.234", which elsewhere is less than two
    TooManyDigits = 6, // more than 34
};

/// What is wrong, and where: the index of the unit, or the text's length if something is missing at its end.
struct AmountFault
{
    AmountError error = AmountError::None;
    std::size_t position = 0;
};

/// Reads such an amount strictly, so that a number in another notation is noticed and not taken for a hundredfold.
///
/// An optional - or +; digits, either without any marks or all in groups of three behind one to three, with any mark of
/// AmountGrouping, the same in all of the text; then, if there is a fraction, a comma and at least one digit. Groups do
/// not start with 0 and, with full stops, need the comma. Zeros at the end count: 12,50 has two fraction digits.
/// Nothing else may stand around it, and nothing is rounded. On failure, `amount` is unchanged and `fault` tells the
/// first one; on success, `fault` has none.
VEK_API bool TryParseAmount(std::wstring_view text, Decimal& amount, AmountFault& fault) noexcept;

} // namespace Vek::Framework::Utilities
