// The proleptic Gregorian calendar in whole numbers: every rule about days, months and years of the old and the new
// dates stands here. Closed forms only; no step goes year by year.
#pragma once

#include <cstdint>

namespace Vek::Framework::Utilities::Internal
{

/// A day of the civil calendar; month 1 to 12, day 1 to 31.
struct CivilDate
{
    long long year;
    int month;
    int day;

    friend constexpr bool operator==(CivilDate const&, CivilDate const&) = default;
};

constexpr long long FloorDivide(long long dividend, long long divisor)
{
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

/// 0 to divisor - 1; the divisor is positive.
constexpr long long FloorModulo(long long dividend, long long divisor)
{
    long long const remainder = dividend % divisor;
    return remainder < 0 ? remainder + divisor : remainder;
}

constexpr bool IsLeapYear(long long year)
{
    // A multiple of 4 that is one of 25 is one of 100; such a year must also be one of 16, which with 25 makes 400.
    return year % 25 == 0 ? (year & 15) == 0 : (year & 3) == 0;
}

/// 28 to 31; 0 for a month outside 1 to 12.
constexpr int GetDaysInMonth(long long month, long long year)
{
    if (month < 1 || month > 12)
        return 0;
    if (month == 2)
        return IsLeapYear(year) ? 29 : 28;
    return 30 + static_cast<int>((month ^ (month >> 3)) & 1); // the odd months are long up to July, then the even ones
}

/// A date in 32 bits, in years from 0 to 2,900,000; month 1 to 12, day 1 to 31.
struct ShortDate
{
    std::uint32_t year;
    std::uint32_t month;
    std::uint32_t day;
};

/// 28 to 31, of a month 1 to 12.
constexpr std::uint32_t GetShortMonthLength(std::uint32_t year, std::uint32_t month)
{
    if (month == 2)
        return (year % 25 == 0 ? year & 15U : year & 3U) == 0 ? 29 : 28; // as above
    return 30 + ((month ^ (month >> 3U)) & 1U);
}

/// In leap years.
constexpr std::uint8_t c_greatestMonthLengths[] = { 0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };

/// Whether there is the day; of any fields.
constexpr bool IsShortDate(ShortDate const& date)
{
    return date.month <= 12 && date.day - 1 < c_greatestMonthLengths[date.month] &&
           (date.day != 29 || date.month != 2 || GetShortMonthLength(date.year, 2) == 29);
}

/// Days from 1 March of the year 0. Years begin in March, so that the leap day is a year's last; January and February
/// are months 13 and 14 of the year before. Not before that day.
constexpr std::uint32_t GetShortDay(std::uint32_t year, std::uint32_t month, std::uint32_t day)
{
    std::uint32_t const isBeforeMarch = (month - 3) >> 31U; // without a branch: months come in no order
    std::uint32_t const marchYear = year - isBeforeMarch;
    std::uint32_t const marchMonth = month + 12 * isBeforeMarch; // [3, 14]
    std::uint32_t const century = marchYear / 100;
    return marchYear * 1461 / 4 - century + century / 4 + (marchMonth * 979 - 2919) / 32 + day - 1;
}

/// A day of a year that begins in March.
struct MarchDay
{
    std::uint32_t year;
    std::uint32_t day; // [0, 365]
};

/// Of a day counted from 1 March of the year 0, up to 2^30 days. Multiplications and shifts in place of most divisions,
/// here and below, after Neri and Schneider, "Euclidean affine functions and their application to calendar algorithms"
/// (2022).
constexpr MarchDay GetMarchDay(std::uint32_t day)
{
    std::uint32_t const quarters = 4 * day + 3;
    std::uint32_t const century = quarters / 146097;
    std::uint32_t const quartersOfCentury = quarters % 146097 | 3;            // [3, 146099]
    std::uint64_t const years = std::uint64_t{ 2939745 } * quartersOfCentury; // in units of 2^-32
    auto const yearOfCentury = static_cast<std::uint32_t>(years >> 32U);      // [0, 99]
    return { century * 100 + yearOfCentury, static_cast<std::uint32_t>(years) / 2939745 / 4 };
}

constexpr ShortDate GetShortDate(MarchDay day)
{
    std::uint32_t const months = day.day * 2141 + 197913;      // in units of 2^-16
    std::uint32_t const marchMonth = months >> 16U;            // [3, 14]
    std::uint32_t const isNextYear = (12 - marchMonth) >> 31U; // from 1 January on
    return { day.year + isNextYear, marchMonth - 12 * isNextYear, (months & 0xFFFFU) / 2141 + 1 };
}

constexpr ShortDate GetShortDate(std::uint32_t day)
{
    return GetShortDate(GetMarchDay(day));
}

constexpr long long c_daysOfCycle = 146097;       // 400 years
constexpr long long c_dayNumberOfMarch = -719468; // 1 March of the year 0

/// Days from 1 January 1970; any year whose days fit. The day may lie outside its month and counts on from its first.
constexpr long long GetDayNumber(long long year, int month, long long day)
{
    // The short day of the same year of the first cycle that has all of it.
    long long const cycle = FloorDivide(year, 400);
    auto const yearOfCycle = static_cast<std::uint32_t>(year - cycle * 400 + 400); // [400, 799]
    std::uint32_t const first = GetShortDay(yearOfCycle, static_cast<std::uint32_t>(month), 1);
    return (cycle - 1) * c_daysOfCycle + c_dayNumberOfMarch + first + (day - 1);
}

/// The date of a day counted from 1 January 1970.
constexpr CivilDate GetCivilDate(long long dayNumber)
{
    long long const days = dayNumber - c_dayNumberOfMarch;
    long long const cycle = FloorDivide(days, c_daysOfCycle);
    ShortDate const date = GetShortDate(static_cast<std::uint32_t>(days - cycle * c_daysOfCycle));
    return { cycle * 400 + date.year, static_cast<int>(date.month), static_cast<int>(date.day) };
}

/// 0 is Sunday, 6 Saturday.
constexpr int GetDayOfWeek(long long dayNumber)
{
    return static_cast<int>(FloorModulo(dayNumber + 4, 7)); // 1 January 1970 was a Thursday
}

} // namespace Vek::Framework::Utilities::Internal
