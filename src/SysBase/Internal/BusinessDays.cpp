#include <SysBase/Internal/BusinessDays.h>

namespace VekSysBase::Internal
{

YearDay GetYearDay(VekDateEx const& date)
{
    YearDay day;
    if (TryGetYearDay(date, day))
        return day;
    return Add({ date.GetYear(), 0 }, GetDayOfYear(date.GetDay(), date.GetMonth(), date.GetYear()) - 1);
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
    YearDay day;
    if (TryGetYearDay(date, day))
        return Contains(kind, day);
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

namespace
{

int CountOutside(DaySet const& set, int from, int to)
{
    return to - from - (set.CountBefore(to) - set.CountBefore(from));
}

YearDay AddAfter(FreeDays kind, YearDay day, long long number)
{
    for (;; day = { day.year + 1, -1 })
    {
        BusinessYear const& year = GetBusinessYear(day.year);
        DaySet const& set = year.Get(kind);
        int const left = CountOutside(set, day.index + 1, year.length);
        if (number > left)
        {
            number -= left;
            continue;
        }
        // As many days on as are wanted, then as many as were in the set, until none was.
        for (int days = static_cast<int>(number); days > 0;)
        {
            int const before = set.CountBefore(day.index + 1);
            day.index += days;
            days = set.CountBefore(day.index + 1) - before;
        }
        return day;
    }
}

/// The same the other way.
YearDay AddBefore(FreeDays kind, YearDay day, long long number)
{
    for (;; day = { day.year - 1, GetBusinessYear(day.year - 1).length })
    {
        DaySet const& set = GetBusinessYear(day.year).Get(kind);
        int const left = CountOutside(set, 0, day.index);
        if (number > left)
        {
            number -= left;
            continue;
        }
        for (int days = static_cast<int>(number); days > 0;)
        {
            int const before = set.CountBefore(day.index);
            day.index -= days;
            days = before - set.CountBefore(day.index);
        }
        return day;
    }
}

} // namespace

YearDay AddOutside(FreeDays kind, YearDay day, long long number)
{
    return number < 0 ? AddBefore(kind, day, -number) : AddAfter(kind, day, number);
}

} // namespace VekSysBase::Internal
