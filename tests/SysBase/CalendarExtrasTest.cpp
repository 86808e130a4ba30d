#include <SysBase/CalendarNames.h>
#include <SysBase/Feiertage.h>
#include <SysBase/Heute.h>
#include <SysBase/Kalenderwoche.h>
#include <SysBase/TargetTage.h>
#include <SysBase/VekDateConversion.h>
#include <SysBase/Werktage.h>
#include <SysBase/Zinstage.h>

#include "PrintDate.h"

using namespace VekSysBase;

// tables/make-tables.py says how the tables were made.
TEST(CalendarTables, MovableHolidaysByEpacts)
{
    std::ifstream file(std::string(VEK_CALENDAR_TABLES) + "movable-holidays.txt");
    int years = 0;
    for (int year = 0; file >> year; ++years)
        for (Feiertag const feiertag :
             { Feiertag::Ostermontag, Feiertag::ChristiHimmelfahrt, Feiertag::Pfingstmontag, Feiertag::Fronleichnam })
        {
            int day = 0;
            file >> day;
            auto const all = GetFeiertage(year);
            auto const found = std::find_if(all.begin(), all.end(),
                                            [&](FeiertagDate const& entry) { return entry.feiertag == feiertag; });
            ASSERT_EQ(found->date, VekDateEx(day % 100, day / 100, year));
        }
    EXPECT_EQ(years, 2200 - 1583 + 1);
}

// The closed days between Monday and Friday.
TEST(CalendarTables, OpenDaysByQuantLib)
{
    for (auto const& [name, firstYear, isOpen] : Rows<std::string, int, bool (*)(VekDateEx const&) noexcept>{
             { "target-closing-days.txt", 2002, IsTargetTag }, { "austria-free-weekdays.txt", 1967, IsWerktag } })
    {
        std::ifstream file(VEK_CALENDAR_TABLES + name);
        VekDateEx date(1, 1, firstYear);
        for (std::string line; std::getline(file, line);)
        {
            std::istringstream words(line);
            int year;
            words >> year;
            std::set<VekDateEx> closed;
            for (int day; words >> day;)
                closed.insert(VekDateEx(day % 100, day / 100, year));
            for (; date.GetYear() == year; date.AddDays(1))
            {
                bool const isWeekend = date.GetDayOfWeek() >= DayOfWeek::Saturday;
                ASSERT_EQ(isOpen(date), !isWeekend && !closed.contains(date)) << testing::PrintToString(date);
            }
        }
        EXPECT_EQ(date, VekDateEx(1, 1, 2200)) << name;
    }
}

TEST(CalendarNames, Ends) // the example DueDates shows those between
{
    EXPECT_TRUE(GetMonatsname(1) == L"J\u00E4nner" && GetMonatsname(12) == L"Dezember");
    EXPECT_TRUE(GetMonatsname(std::numeric_limits<int>::min()).empty() && GetMonatsname(13).empty());
    EXPECT_TRUE(GetWochentagsname(DayOfWeek(7)).empty() && GetWochentagskuerzel(DayOfWeek(-1)).empty());
    EXPECT_TRUE(GetFeiertagName(Feiertag(14)).empty());
}

TEST(Kalenderwoche, EveryDayBothWays)
{
    Kalenderwoche week{ 1899, 52 };
    VekDateEx date(1, 1, 1900); // a Monday
    for (int day = 0; date.GetYear() < 2200; ++day, date.AddDays(1))
    {
        if (day % 7 == 0)
        {
            VekDateEx thursday = date;
            thursday.AddDays(3);
            bool const isFirst = thursday.GetMonth() == 1 && thursday.GetDay() <= 7;
            week = isFirst ? Kalenderwoche{ thursday.GetYear(), 1 } : Kalenderwoche{ week.year, week.week + 1 };
        }
        ASSERT_EQ(GetKalenderwoche(date), week) << testing::PrintToString(date);
        ASSERT_EQ(GetDateInKalenderwoche(week, static_cast<DayOfWeek>(day % 7)), date);
    }
}

TEST(Kalenderwoche, WhatIsNotThere)
{
    auto const isMissing = [](int year, int week, int day) {
        return GetDateInKalenderwoche({ year, week }, static_cast<DayOfWeek>(day)).IsZero();
    };
    EXPECT_TRUE(isMissing(2021, 53, 0) && isMissing(2021, 0, 0) && isMissing(2021, 1, 7) && isMissing(2021, 1, -1));
    EXPECT_TRUE(isMissing(65536, 2, 0) && isMissing(std::numeric_limits<int>::max(), 1, 0) && isMissing(-1, 51, 0));
    for (VekDateEx const date : { VekDateEx(1, 1, 0), VekDateEx(31, 12, 65535) }) // in weeks of years that no date has
        EXPECT_EQ(GetDateInKalenderwoche(GetKalenderwoche(date), date.GetDayOfWeek()), date);
    EXPECT_EQ(GetKalenderwoche({ 31, 2, 2024 }), Kalenderwoche());
}

TEST(Heute, IsTheDayOfNow)
{
    using Vek::Framework::Utilities::DateTime;
    VekDateEx const before = ToVekDate(DateTime::Now()); // midnight may pass
    VekDateEx const today = Heute();
    EXPECT_TRUE(before <= today && today <= ToVekDate(DateTime::Now()));
}

TEST(Zinstage, ByEveryMethod)
{
    Rows<VekDateEx, VekDateEx, int, int, char const*> const rows = {
        { { 1, 1, 2024 }, { 1, 1, 2025 }, 360, 366, "a leap year" },
        { { 31, 3, 2023 }, { 30, 4, 2023 }, 30, 30, "the 31st is the 30th" },
        { { 28, 2, 2023 }, { 1, 3, 2023 }, 3, 1, "the end of February stays" },
        { { 31, 2, 2023 }, { 1, 3, 2023 }, 0, 0, "an invalid date" },
    };
    for (auto const& [from, to, months30, calendar, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(Zinstage(from, to, Zinsmethode::Monate30Jahr360), months30);
        EXPECT_EQ(Zinstage(to, from, Zinsmethode::Monate30Jahr360), -months30);
        for (Zinsmethode const method : { Zinsmethode::Kalender360, Zinsmethode::Kalender365 })
            EXPECT_EQ(Zinstage(from, to, method), calendar);
    }
    auto const unknown = static_cast<Zinsmethode>(3);
    EXPECT_THROW(Zinstage(VekDateEx(), VekDateEx(), unknown), Vek::EnumOutOfRangeException);
    EXPECT_THROW(Zinsjahr(unknown), Vek::EnumOutOfRangeException);
}
