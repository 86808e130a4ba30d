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

TEST(CalendarNames, Ends) // the example DueDates shows those between
{
    EXPECT_TRUE(GetMonatsname(1) == L"J\u00E4nner" && GetMonatsname(12) == L"Dezember");
    EXPECT_TRUE(GetMonatsname(std::numeric_limits<int>::min()).empty() && GetMonatsname(13).empty());
    EXPECT_TRUE(GetWochentagsname(static_cast<DayOfWeek>(7)).empty());
    EXPECT_TRUE(GetWochentagskuerzel(static_cast<DayOfWeek>(-1)).empty());
    EXPECT_TRUE(GetFeiertagName(static_cast<Feiertag>(14)).empty() &&
                GetFeiertagName(static_cast<Feiertag>(-1)).empty());
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
    auto const unknown = static_cast<Zinsmethode>(3);
    EXPECT_THROW(Zinstage(VekDateEx(), VekDateEx(), unknown), Vek::EnumOutOfRangeException);
    EXPECT_THROW(Zinsjahr(unknown), Vek::EnumOutOfRangeException);
}

} // namespace Tests
