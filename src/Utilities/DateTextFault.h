#pragma once

#include <cstddef>

namespace Vek::Framework::Utilities
{

enum class DateTextError
{
    None = 0,
    MissingUnit = 1, // the text ends where more must follow: "", "2024-03", "5.3."
    WrongUnit = 2,   // a unit that has no place there: "2024/03/05", "2024-3-5", a blank, an eighth fraction digit
    ShortYear = 3,   // fewer than four digits: "5.3.24"
    OutOfRange = 4,  // a number that no date or time has: month 13, 30 February, hour 24, a year out of the range
    TimeZone = 5,    // 'Z' or an offset behind the text: it would be a point on another clock
};

/// What is wrong with a text, and where: the index of the unit or of the number's first digit, or the text's length if
/// something is missing at its end.
struct DateTextFault
{
    DateTextError error = DateTextError::None;
    std::size_t position = 0;
};

} // namespace Vek::Framework::Utilities
