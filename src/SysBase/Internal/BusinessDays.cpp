#include <SysBase/Internal/BusinessDays.h>

namespace VekSysBase::Internal
{

namespace
{

int CountOutsideBefore(FreeDays kind, BusinessYear const& year, int day)
{
    return day - year.Get(kind).CountBefore(day);
}

/// The day that `number` others outside the set precede in its year.
int FindByNumber(FreeDays kind, BusinessYear const& year, int number)
{
    int low = number; // there are that many days before it at least
    int high = year.length - 1;
    while (low < high)
    {
        int const middle = (low + high) / 2;
        if (CountOutsideBefore(kind, year, middle + 1) > number)
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

} // namespace

YearDay GetYearDay(VekDateEx const& date)
{
    int const index = GetDayOfYear(date.GetDay(), date.GetMonth(), date.GetYear()) - 1;
    if (index >= 0 && index < 365)
        return { date.GetYear(), index };
    return Add({ date.GetYear(), 0 }, index);
}

VekDateEx GetDate(YearDay day)
{
    // Months begin in March, so that the leap day comes last.
    int const februaryEnd = Civil::IsLeapYear(day.year) ? 60 : 59;
    int const marchDay = day.index < februaryEnd ? day.index + 306 : day.index - februaryEnd; // [0, 365]
    int const marchMonth = (5 * marchDay + 2) / 153;                                          // [0, 11]
    return VekDateEx(marchDay - (153 * marchMonth + 2) / 5 + 1, marchMonth + (marchMonth < 10 ? 3 : -9),
                     static_cast<int>(day.year & 0xFFFF));
}

YearDay Add(YearDay day, long long days)
{
    long long const index = day.index + days;
    if (index >= 0 && index < 365)
        return { day.year, static_cast<int>(index) };
    long long const number = Civil::GetDayNumber(day.year, 1, index + 1);
    long long const year = Civil::GetCivilDate(number).year;
    return { year, static_cast<int>(number - Civil::GetDayNumber(year, 1, 1)) };
}

bool Contains(FreeDays kind, VekDateEx const& date)
{
    int const day = date.GetDay();
    if (day >= 1 && day <= Civil::GetDaysInMonth(date.GetMonth(), date.GetYear()))
        return Contains(kind, { date.GetYear(), GetDayOfYear(day, date.GetMonth(), date.GetYear()) - 1 });
    return kind != FreeDays::Feiertag && date.GetDayOfWeek() >= DayOfWeek::Saturday;
}

long long Count(FreeDays kind, YearDay first, long long days)
{
    long long count = 0;
    BusinessYear const* year = &GetBusinessYear(first.year);
    while (first.index + days > year->length)
    {
        DaySet const& set = year->Get(kind);
        count += set.CountBefore(year->length) - set.CountBefore(first.index);
        days -= year->length - first.index;
        first = { first.year + 1, 0 };
        year = &GetBusinessYear(first.year);
    }
    DaySet const& set = year->Get(kind);
    return count + set.CountBefore(first.index + static_cast<int>(days)) - set.CountBefore(first.index);
}

YearDay FindOutside(FreeDays kind, YearDay day, int direction)
{
    while (Contains(kind, day))
        day = Add(day, direction);
    return day;
}

YearDay AddOutside(FreeDays kind, YearDay day, long long number)
{
    if (number == 0)
        return day;
    // As if counted from the year's first day outside the set, which is number 0.
    BusinessYear const* year = &GetBusinessYear(day.year);
    number += CountOutsideBefore(kind, *year, number > 0 ? day.index + 1 : day.index) - (number > 0 ? 1 : 0);
    while (number < 0)
    {
        year = &GetBusinessYear(--day.year);
        number += CountOutsideBefore(kind, *year, year->length);
    }
    for (int count; number >= (count = CountOutsideBefore(kind, *year, year->length)); number -= count)
        year = &GetBusinessYear(++day.year);
    return { day.year, FindByNumber(kind, *year, static_cast<int>(number)) };
}

} // namespace VekSysBase::Internal
