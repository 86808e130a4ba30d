// Dates and times of day as text, for all kinds of dates: reading with the place of the fault, and writing.
#pragma once

#include <Utilities/DateTextFault.h>
#include <Utilities/Internal/CivilCalendar.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace Vek::Framework::Utilities::Internal
{

enum class DateNotation
{
    Iso,   // 2024-03-05T14:30:05.1234567
    German // 05.03.2024 14:30
};

/// What a kind of dates can hold. Years have up to five digits.
struct DateTextLimits
{
    std::uint32_t leastYear;
    std::uint32_t greatestYear;
    bool hasTime; // perhaps: a date alone is enough
};

struct DateTextFields
{
    ShortDate date{};
    std::uint64_t ticksOfDay = 0;
};

/// False, and the fields mean nothing, if the text is no date that exists; `fault` is the first one then, or none. The
/// text's two words come by themselves: as a view they would be stored one by one for Win64 and loaded as one, for
/// which processors wait.
bool TryReadDateText(wchar_t const* units, std::size_t size, DateNotation notation, DateTextLimits const& limits,
                     DateTextFields& fields, DateTextFault& fault) noexcept;

/// Of years up to 99999: with four digits at least, from 10000 on with five and, in ISO 8601, a plus sign.
std::wstring MakeDateText(DateNotation notation, ShortDate const& date);
/// With the time of day; German drops what is below a minute.
std::wstring MakeDateText(DateNotation notation, ShortDate const& date, std::uint64_t ticksOfDay);

} // namespace Vek::Framework::Utilities::Internal
