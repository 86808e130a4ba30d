// The calendar against tables that others' rules have made; tables/make-tables.py says how.
#include <SysBase/Feiertage.h>
#include <SysBase/TargetTage.h>
#include <SysBase/VekDateEnv.h>
#include <SysBase/Werktage.h>

#include "PrintDate.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace Tests
{

using VekSysBase::Feiertag;
using VekSysBase::VekDateEx;

namespace
{

struct TableYear
{
    int year;
    std::vector<VekDateEx> days;
};

std::vector<TableYear> ReadTable(std::string const& name)
{
    std::vector<TableYear> table;
    std::ifstream file(VEK_CALENDAR_TABLES + name);
    for (std::string line; std::getline(file, line);)
    {
        std::istringstream words(line);
        TableYear& year = table.emplace_back();
        words >> year.year;
        for (int day; words >> day;)
            year.days.push_back(VekDateEx(day % 100, day / 100, year.year));
    }
    return table;
}

/// Every day of the table's years: Monday to Friday, it is in the table exactly if `isFree` says so.
template <class Predicate>
void CompareWeekdays(std::vector<TableYear> const& table, Predicate isFree)
{
    for (TableYear const& year : table)
    {
        std::set<VekDateEx> const days(year.days.begin(), year.days.end());
        for (VekDateEx date(1, 1, year.year); date.GetYear() == year.year; date.AddDays(1))
        {
            bool const isWeekend = date.GetDayOfWeek() >= VekSysBase::DayOfWeek::Saturday;
            ASSERT_EQ(isFree(date), isWeekend || days.contains(date)) << testing::PrintToString(date);
        }
    }
}

} // namespace

TEST(CalendarTables, MovableHolidaysByEpacts)
{
    std::vector<TableYear> const table = ReadTable("movable-holidays.txt");
    ASSERT_EQ(table.size(), 2200U - 1583U + 1U);
    for (TableYear const& year : table)
    {
        std::vector<VekDateEx> movable;
        for (auto const& entry : VekSysBase::GetFeiertage(year.year))
        {
            ASSERT_TRUE(VekSysBase::VekDateEnv().IsFeiertag(entry.date)) << testing::PrintToString(entry.date);
            Feiertag const feiertag = entry.feiertag;
            if (feiertag == Feiertag::Ostermontag || feiertag == Feiertag::ChristiHimmelfahrt ||
                feiertag == Feiertag::Pfingstmontag || feiertag == Feiertag::Fronleichnam)
                movable.push_back(entry.date);
        }
        ASSERT_EQ(movable, year.days) << year.year;
    }
}

TEST(CalendarTables, TargetClosingDaysByQuantLib)
{
    std::vector<TableYear> const table = ReadTable("target-closing-days.txt");
    ASSERT_EQ(table.size(), 2199U - 2002U + 1U);
    CompareWeekdays(table, [](VekDateEx const& date) { return !VekSysBase::IsTargetTag(date); });
}

TEST(CalendarTables, BankDaysByQuantLib)
{
    std::vector<TableYear> table = ReadTable("austria-free-weekdays.txt");
    ASSERT_EQ(table.size(), 2199U - 1967U + 1U);
    CompareWeekdays(table, [](VekDateEx const& date) { return !VekSysBase::IsWerktag(date); });
    for (TableYear& year : table)
        year.days.push_back({ 24, 12, year.year }); // a banking day for QuantLib
    CompareWeekdays(table, [](VekDateEx const& date) { return !VekSysBase::IsBankwerktag(date); });
}

} // namespace Tests
