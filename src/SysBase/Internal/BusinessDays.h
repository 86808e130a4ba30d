// Steps over free days. Days are counted on the endless Gregorian calendar, a year at a time.
#pragma once

#include <SysBase/Internal/BusinessYear.h>
#include <SysBase/Internal/DayNumbers.h>

#include <cstdint>

namespace VekSysBase::Internal
{

/// A day by its year and its place in it, from 0 for 1 January. Both go in one register, also on Win64; the years that
/// 2^33 days reach fit.
struct YearDay
{
    int year;
    int index;
};

/// The days of a year before each month, and all of them; of common years and of leap years.
constexpr std::uint16_t c_daysBeforeMonth[2][13] = {
    { 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365 },
    { 0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366 },
};

/// False for an invalid date.
inline bool TryGetYearDay(VekDateEx const& date, YearDay& day)
{
    auto const month = static_cast<unsigned int>(date.GetMonth()) - 1;
    if (month >= 12)
        return false;
    std::uint16_t const* const before = c_daysBeforeMonth[Civil::IsLeapYear(date.GetYear()) ? 1 : 0] + month;
    day = { date.GetYear(), before[0] + date.GetDay() - 1 };
    return date.GetDay() >= 1 && day.index < before[1];
}

/// Of an invalid date, the day that VekDateEx::AddDays starts from.
YearDay GetYearDay(VekDateEx const& date);
/// A year outside 0 to 65535 keeps its low 16 bits.
VekDateEx GetDate(YearDay day);
YearDay Add(YearDay day, long long days);

inline bool Contains(FreeDays kind, YearDay day)
{
    return GetBusinessYear(day.year).Get(kind).Contains(day.index);
}

/// Whether the date is in the set. An invalid date is no holiday, but has a weekday.
bool Contains(FreeDays kind, VekDateEx const& date);

/// How many of the `days` days from `first` on are in the set.
long long Count(FreeDays kind, YearDay first, long long days);

/// The day itself, or the nearest one in the direction (1 or -1) that is not in the set.
YearDay FindOutside(FreeDays kind, YearDay day, int direction);

/// The n-th day outside the set, after `date` or, for a negative number, before it; `date` itself for 0. Of an invalid
/// date the zero date.
VekDateEx AddOutside(FreeDays kind, VekDateEx const& date, int number);

} // namespace VekSysBase::Internal
