#include <SysBase/Kalenderwoche.h>

#include <SysBase/Internal/DayNumbers.h>

namespace VekSysBase
{

namespace
{

using namespace Internal;

/// Day 0, 1 January 1970, was a Thursday.
long long GetMonday(long long dayNumber)
{
    return dayNumber - Civil::FloorModulo(dayNumber + 3, 7);
}

long long GetFirstMonday(long long year)
{
    return GetMonday(Civil::GetDayNumber(year, 1, 4));
}

} // namespace

Kalenderwoche GetKalenderwoche(VekDateEx const& date) noexcept
{
    if (!date.IsValid(true))
        return {};
    // A week belongs to the year of its Thursday.
    long long const monday = GetMonday(GetDayNumber(date));
    long long const year = Civil::GetCivilDate(monday + 3).year;
    return { static_cast<int>(year), static_cast<int>((monday - GetFirstMonday(year)) / 7) + 1 };
}

VekDateEx GetDateInKalenderwoche(Kalenderwoche const& week, DayOfWeek dayOfWeek) noexcept
{
    bool const isDay = dayOfWeek >= DayOfWeek::Monday && dayOfWeek <= DayOfWeek::Sunday;
    if (!isDay || week.week < 1 || week.week > GetKalenderwochenInYear(week.year))
        return VekDateEx();
    long long const day = GetFirstMonday(week.year) + (week.week - 1) * 7 + static_cast<int>(dayOfWeek);
    long long const year = Civil::GetCivilDate(day).year;
    return year >= 0 && year <= 0xFFFF ? GetDate(day) : VekDateEx();
}

int GetKalenderwochenInYear(int year) noexcept
{
    return static_cast<int>((GetFirstMonday(year + 1LL) - GetFirstMonday(year)) / 7);
}

} // namespace VekSysBase
