#include <SysBase/Internal/BusinessDays.h>

#include <array>
#include <cstddef>

namespace VekSysBase::Internal
{

YearDay GetYearDay(VekDateEx const& date)
{
    YearDay day;
    if (TryGetYearDay(date, day))
        return day;
    return Add({ date.GetYear(), 0 }, GetDayOfYear(date.GetDay(), date.GetMonth(), date.GetYear()) - 1);
}

namespace
{

struct DayAndMonth
{
    std::uint8_t day;
    std::uint8_t month;
};

/// The days of common years and of leap years.
constexpr auto c_datesOfYear = []
{
    std::array<std::array<DayAndMonth, 366>, 2> dates{};
    for (std::size_t leap = 0; leap < 2; ++leap)
        for (std::uint8_t month = 1; month <= 12; ++month)
            for (std::size_t i = c_daysBeforeMonth[leap][month - 1]; i < c_daysBeforeMonth[leap][month]; ++i)
                dates[leap][i] = { static_cast<std::uint8_t>(i - c_daysBeforeMonth[leap][month - 1] + 1), month };
    return dates;
}();

} // namespace

VekDateEx GetDate(YearDay day)
{
    auto const& dates = c_datesOfYear[Civil::IsLeapYear(day.year) ? 1 : 0];
    DayAndMonth const date = dates[static_cast<std::size_t>(day.index)];
    return VekDateEx(date.day, date.month, static_cast<int>(day.year & 0xFFFF));
}

YearDay Add(YearDay day, long long days)
{
    long long const index = day.index + days;
    if (index >= 0 && index < 365)
        return { day.year, static_cast<int>(index) };
    long long const number = Civil::GetDayNumber(day.year, 1, index + 1);
    auto const year = static_cast<int>(Civil::GetCivilDate(number).year);
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

namespace
{

YearDay AddAfter(FreeDays kind, YearDay day, long long number)
{
    for (;; day = { day.year + 1, -1 })
    {
        BusinessYear const& year = GetBusinessYear(day.year);
        DaySet const& set = year.Get(kind);
        int const before = set.CountOutsideBefore(day.index + 1);
        int const left = set.CountOutsideBefore(year.length) - before;
        if (number <= left)
            return { day.year, set.GetOutside(before + static_cast<int>(number) - 1) };
        number -= left;
    }
}

/// The same the other way.
YearDay AddBefore(FreeDays kind, YearDay day, long long number)
{
    for (;; day = { day.year - 1, GetBusinessYear(day.year - 1).length })
    {
        DaySet const& set = GetBusinessYear(day.year).Get(kind);
        int const left = set.CountOutsideBefore(day.index);
        if (number <= left)
            return { day.year, set.GetOutside(left - static_cast<int>(number)) };
        number -= left;
    }
}

} // namespace

YearDay FindOutside(FreeDays kind, YearDay day, int direction)
{
    return direction > 0 ? AddAfter(kind, { day.year, day.index - 1 }, 1)
                         : AddBefore(kind, { day.year, day.index + 1 }, 1);
}

VekDateEx AddOutside(FreeDays kind, VekDateEx const& date, int number)
{
    YearDay day;
    if (!TryGetYearDay(date, day))
        return VekDateEx();
    if (number == 0)
        return date;
    return GetDate(number < 0 ? AddBefore(kind, day, -static_cast<long long>(number)) : AddAfter(kind, day, number));
}

} // namespace VekSysBase::Internal
