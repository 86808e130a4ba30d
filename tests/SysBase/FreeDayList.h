// The business calendar as a plain list of days, made from the rules as they are told and from another way to Easter.
#pragma once

#include <SysBase/VekDateEx.h>

#include <cstddef>
#include <vector>

namespace Tests
{

struct ListedDay
{
    VekSysBase::VekDateEx date;
    bool isFeiertag;
    bool isWeekend;

    bool IsFree(bool forBanks) const
    {
        return isFeiertag || isWeekend || (forBanks && date.GetDay() == 24 && date.GetMonth() == 12);
    }
};

/// Easter Sunday by Meeus' rule (after Butcher's of 1876), days after 1 March.
inline int GetEasterByMeeus(int year)
{
    int const a = year % 19;
    int const b = year / 100;
    int const c = year % 100;
    int const h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    int const l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    int const m = (a + 11 * h + 22 * l) / 451;
    return h + l - 7 * m + 21;
}

/// Every day from 1 January of the one year to 31 December of the other.
inline std::vector<ListedDay> ListDays(int firstYear, int lastYear)
{
    using VekSysBase::VekDateEx;
    std::vector<ListedDay> days;
    VekDateEx const fixed[] = { { 1, 1, 0 },  { 6, 1, 0 },  { 1, 5, 0 },   { 15, 8, 0 }, { 26, 10, 0 },
                                { 1, 11, 0 }, { 8, 12, 0 }, { 25, 12, 0 }, { 26, 12, 0 } };
    int dayOfWeek = VekDateEx(1, 1, firstYear).GetDayOfWeekInt();
    for (int year = firstYear; year <= lastYear; ++year)
    {
        std::size_t const first = days.size();
        bool const isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        int const lengths[] = { 31, isLeapYear ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= lengths[month - 1]; ++day, dayOfWeek = (dayOfWeek + 1) % 7)
            {
                bool isFixed = false;
                for (VekDateEx const& feiertag : fixed)
                    isFixed = isFixed || (feiertag.GetDay() == day && feiertag.GetMonth() == month);
                days.push_back({ VekDateEx(day, month, year), isFixed, dayOfWeek == 0 || dayOfWeek == 6 });
            }
        std::size_t const easter = first + (isLeapYear ? 60U : 59U) + static_cast<std::size_t>(GetEasterByMeeus(year));
        for (std::size_t const later : { 1U, 39U, 50U, 60U })
            days[easter + later].isFeiertag = true;
    }
    return days;
}

} // namespace Tests
