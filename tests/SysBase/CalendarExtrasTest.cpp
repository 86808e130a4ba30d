#include <SysBase/CalendarNames.h>
#include <SysBase/Feiertage.h>
#include <SysBase/Heute.h>
#include <SysBase/Kalenderwoche.h>
#include <SysBase/Zinstage.h>

#include "FreeDayList.h"
#include "PrintDate.h"

#include <Exceptions/EnumOutOfRangeException.h>
#include <Utilities/DateTime.h>

#include <gtest/gtest.h>

#include <limits>

namespace Tests
{

using namespace VekSysBase;

TEST(Feiertage, NamedByDate)
{
    struct Row
    {
        VekDateEx date;
        wchar_t const* name;
    };
    Row const rows[] = {
        { { 1, 1, 2024 }, L"Neujahr" },
        { { 6, 1, 2024 }, L"Heilige Drei K\u00F6nige" },
        { { 1, 4, 2024 }, L"Ostermontag" },
        { { 1, 5, 2024 }, L"Staatsfeiertag" },
        { { 9, 5, 2024 }, L"Christi Himmelfahrt" },
        { { 20, 5, 2024 }, L"Pfingstmontag" },
        { { 30, 5, 2024 }, L"Fronleichnam" },
        { { 15, 8, 2024 }, L"Mari\u00E4 Himmelfahrt" },
        { { 26, 10, 2024 }, L"Nationalfeiertag" },
        { { 1, 11, 2024 }, L"Allerheiligen" },
        { { 8, 12, 2024 }, L"Mari\u00E4 Empf\u00E4ngnis" },
        { { 25, 12, 2024 }, L"Christtag" },
        { { 26, 12, 2024 }, L"Stefanitag" },
        { { 1, 5, 2008 }, L"Staatsfeiertag" }, // and Ascension Day
        { { 24, 12, 2024 }, L"" },
        { {}, L"" },
    };
    for (Row const& row : rows)
        EXPECT_EQ(GetFeiertagName(GetFeiertag(row.date)), row.name);
    EXPECT_EQ(GetFeiertagName(static_cast<Feiertag>(14)), L"");
    EXPECT_EQ(GetFeiertagName(static_cast<Feiertag>(-1)), L"");
}

TEST(Feiertage, OfAYearAreThoseOfItsDays)
{
    std::vector<ListedDay> const list = ListDays(1583, 2500);
    auto day = list.begin();
    for (int year = 1583; year <= 2500; ++year)
    {
        auto const feiertage = GetFeiertage(year);
        auto feiertag = feiertage.begin();
        for (; day != list.end() && day->date.GetYear() == year; ++day)
        {
            bool const isNext = feiertag != feiertage.end() && feiertag->date == day->date;
            ASSERT_EQ(isNext, day->isFeiertag) << testing::PrintToString(day->date);
            ASSERT_EQ(GetFeiertag(day->date), isNext ? feiertag->feiertag : Feiertag::None);
            while (feiertag != feiertage.end() && feiertag->date == day->date)
                ++feiertag;
        }
        ASSERT_EQ(feiertag, feiertage.end()) << year;
    }
}

TEST(CalendarNames, Ends)
{
    EXPECT_EQ(GetMonatsname(1), L"J\u00E4nner");
    EXPECT_EQ(GetMonatsname(12), L"Dezember");
    EXPECT_EQ(GetWochentagsname(DayOfWeek::Saturday), L"Samstag");
    EXPECT_EQ(GetWochentagskuerzel(DayOfWeek::Sunday), L"So");
    for (int const month : { 0, 13, std::numeric_limits<int>::min(), std::numeric_limits<int>::max() })
        EXPECT_EQ(GetMonatsname(month), L"");
    EXPECT_EQ(GetWochentagsname(static_cast<DayOfWeek>(7)), L"");
    EXPECT_EQ(GetWochentagskuerzel(static_cast<DayOfWeek>(-1)), L"");
}

TEST(Kalenderwoche, EveryDayBothWays)
{
    Kalenderwoche week{ 1899, 52 };
    int dayOfWeek = 0; // 1 January 1900 was a Monday
    for (ListedDay const& day : ListDays(1900, 2199))
    {
        if (dayOfWeek == 0)
        {
            VekDateEx thursday = day.date;
            thursday.AddDays(3);
            bool const isFirst = thursday.GetMonth() == 1 && thursday.GetDay() <= 7;
            week = isFirst ? Kalenderwoche{ thursday.GetYear(), 1 } : Kalenderwoche{ week.year, week.week + 1 };
        }
        ASSERT_EQ(GetKalenderwoche(day.date), week) << testing::PrintToString(day.date);
        ASSERT_EQ(GetDateInKalenderwoche(week, static_cast<DayOfWeek>(dayOfWeek)), day.date);
        ASSERT_LE(week.week, GetKalenderwochenInYear(week.year));
        dayOfWeek = (dayOfWeek + 1) % 7;
    }
}

TEST(Kalenderwoche, WhatIsNotThere)
{
    EXPECT_EQ(GetKalenderwochenInYear(2020), 53);
    EXPECT_EQ(GetKalenderwochenInYear(2021), 52);
    struct Row
    {
        Kalenderwoche week;
        DayOfWeek dayOfWeek;
        char const* why;
    };
    Row const rows[] = {
        { { 2021, 53 }, DayOfWeek::Monday, "a year of 52 weeks" },
        { { 2021, 0 }, DayOfWeek::Monday, "no week" },
        { { 2021, 1 }, static_cast<DayOfWeek>(7), "no day" },
        { { 0, 1 }, static_cast<DayOfWeek>(-1), "no day either" },
        { { 65536, 2 }, DayOfWeek::Monday, "behind the last year" },
        { { std::numeric_limits<int>::max(), 1 }, DayOfWeek::Monday, "far behind it" },
        { { -1, 51 }, DayOfWeek::Monday, "before the first year" },
    };
    for (Row const& row : rows)
        EXPECT_TRUE(GetDateInKalenderwoche(row.week, row.dayOfWeek).IsZero()) << row.why;
    for (VekDateEx const date : { VekDateEx(1, 1, 0), VekDateEx(31, 12, 65535) }) // in weeks of years that no date has
    {
        Kalenderwoche const week = GetKalenderwoche(date);
        EXPECT_EQ(GetDateInKalenderwoche(week, date.GetDayOfWeek()), date) << week.year;
    }
    EXPECT_EQ(GetKalenderwoche({ 31, 2, 2024 }), Kalenderwoche());
}

TEST(Heute, IsTheDayOfNow)
{
    using Vek::Framework::Utilities::DateTime;
    auto const toDate = [](DateTime const& now)
    {
        auto const fields = now.GetComponents();
        return VekDateEx(fields.GetDayOfMonth(), fields.GetMonth(), fields.GetYear());
    };
    VekDateEx const before = toDate(DateTime::Now()); // midnight may pass
    VekDateEx const today = Heute();
    EXPECT_LE(before, today);
    EXPECT_LE(today, toDate(DateTime::Now()));
}

TEST(Zinstage, ByEveryMethod)
{
    struct Row
    {
        VekDateEx from;
        VekDateEx to;
        int months30;
        int calendar;
        char const* why;
    };
    Row const rows[] = {
        { { 1, 1, 2024 }, { 1, 1, 2025 }, 360, 366, "a leap year" },
        { { 31, 1, 2023 }, { 28, 2, 2023 }, 28, 28, "the end of February stays" },
        { { 30, 1, 2023 }, { 31, 3, 2023 }, 60, 60, "the 31st is the 30th at the end" },
        { { 31, 3, 2023 }, { 30, 4, 2023 }, 30, 30, "and at the start" },
        { { 15, 5, 2023 }, { 31, 12, 2023 }, 225, 230, "a rest of a year" },
        { { 28, 2, 2023 }, { 1, 3, 2023 }, 3, 1, "from the end of February" },
        { { 31, 2, 2023 }, { 1, 3, 2023 }, 0, 0, "an invalid date" },
        { { 1, 3, 2023 }, {}, 0, 0, "the zero date" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(Zinstage(row.from, row.to, Zinsmethode::Monate30Jahr360), row.months30);
        EXPECT_EQ(Zinstage(row.to, row.from, Zinsmethode::Monate30Jahr360), -row.months30);
        for (Zinsmethode const method : { Zinsmethode::Kalender360, Zinsmethode::Kalender365 })
            EXPECT_EQ(Zinstage(row.from, row.to, method), row.calendar);
    }
    EXPECT_EQ(Zinsjahr(Zinsmethode::Monate30Jahr360), 360);
    EXPECT_EQ(Zinsjahr(Zinsmethode::Kalender360), 360);
    EXPECT_EQ(Zinsjahr(Zinsmethode::Kalender365), 365);
    auto const unknown = static_cast<Zinsmethode>(3);
    EXPECT_THROW(Zinstage(VekDateEx(), VekDateEx(), unknown), Vek::EnumOutOfRangeException);
    EXPECT_THROW(Zinsjahr(unknown), Vek::EnumOutOfRangeException);
}

} // namespace Tests
