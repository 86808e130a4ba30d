// The proleptic Gregorian calendar in whole numbers: every rule about days, months and years of the old and the new
// dates stands here. Closed forms only; no step goes year by year.
#pragma once

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

/// Days from 1 January 1970; any year whose days fit. The day may lie outside its month and counts on from its first.
constexpr long long GetDayNumber(long long year, int month, long long day)
{
    // Years begin in March, so that the leap day is a year's last.
    long long const marchYear = year - (month <= 2 ? 1 : 0);
    long long const marchMonth = month + (month <= 2 ? 9 : -3); // [0, 11]
    long long const century = FloorDivide(marchYear, 100);
    return marchYear * 365 + FloorDivide(marchYear, 4) - century + FloorDivide(century, 4) +
           (marchMonth * 153 + 2) / 5 + day - 719469;
}

/// The date of a day counted from 1 January 1970.
constexpr CivilDate GetCivilDate(long long dayNumber)
{
    long long const days = dayNumber + 719468; // from 1 March of the year 0
    long long const cycle = FloorDivide(days, 146097);
    long long const dayOfCycle = days - cycle * 146097; // [0, 146096]
    long long const yearOfCycle =
        (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / 146096) / 365;              // [0, 399]
    long long const dayOfYear = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100); // [0, 365]
    int const marchMonth = static_cast<int>((5 * dayOfYear + 2) / 153);                                 // [0, 11]
    int const month = marchMonth + (marchMonth < 10 ? 3 : -9);
    return { cycle * 400 + yearOfCycle + (month <= 2 ? 1 : 0), month,
             static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1) };
}

/// 0 is Sunday, 6 Saturday.
constexpr int GetDayOfWeek(long long dayNumber)
{
    return static_cast<int>(FloorModulo(dayNumber + 4, 7)); // 1 January 1970 was a Thursday
}

} // namespace Vek::Framework::Utilities::Internal
