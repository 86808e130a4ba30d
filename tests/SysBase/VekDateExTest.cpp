#include <SysBase/VekDateEx.h>

#include "PrintDate.h"

#include <chrono>

using VekSysBase::DayOfWeek;
using VekSysBase::VekDateEx;

TEST(VekDateEx, EveryDayOfACycleBetweenItsNeighbours)
{
    VekDateEx const first(1, 1, 1800);
    VekDateEx date(31, 12, 1799);
    int dayOfWeek = date.GetDayOfWeekInt();
    for (int i = 0; i < 146'097 + 365; ++i)
    {
        VekDateEx const before = date;
        date.AddDays(1);
        bool const isNewYear = before.GetYear() != date.GetYear();
        ASSERT_TRUE(before < date && date.IsValid(true)) << testing::PrintToString(date);
        ASSERT_LT(VekDateEx::Compare(before, date), 0);
        ASSERT_EQ(date.GetDayOfYear(), isNewYear ? 1 : before.GetDayOfYear() + 1);
        ASSERT_TRUE(!isNewYear || before.GetDayOfYear() == before.GetDaysInYear());
        ASSERT_EQ(date.GetDayOfWeekInt(), dayOfWeek = (dayOfWeek + 1) % 7);
        ASSERT_EQ(static_cast<int>(date.GetDayOfWeek()), (dayOfWeek + 6) % 7);
        ASSERT_EQ(VekDateEx::DayInYearToDate(date.GetDayOfYear(), date.GetYear()), date);
        ASSERT_EQ(VekDateEx::GetDaysBetween(first, date), i);
        ASSERT_EQ(VekDateEx::GetDaysBetween(date, first), -i);
        VekDateEx back = date;
        back.AddDays(-i);
        ASSERT_EQ(back, first);

        bool const isFebruaryEnd = before.GetMonth() == 2 && date.GetMonth() == 3;
        bool const hadLeapDay = std::chrono::year(date.GetYear() - 1).is_leap();
        ASSERT_EQ(before.GetYearBefore(), VekDateEx(isFebruaryEnd ? 28 + hadLeapDay : before.GetDay(),
                                                    before.GetMonth(), before.GetYear() - 1));
        // A year that ends on the day before: from the same day, and from the leap day a day earlier.
        VekDateEx const start(date.GetDay(), date.GetMonth(), date.GetYear() - 1);
        ASSERT_EQ(VekDateEx::IsOneYearBetween(start, before), start.IsValid(true));
        bool const isBeforeLeapDay = date.GetMonth() == 2 && date.GetDay() == 28;
        ASSERT_TRUE(!isBeforeLeapDay ||
                    VekDateEx::IsOneYearBetween({ 29, 2, date.GetYear() - 1 }, before) == hadLeapDay);
    }
}

/// The rule as it is told: year by year, then month by month.
VekDateEx AddDaysYearByYear(VekDateEx const& date, int days)
{
    using namespace std::chrono;
    auto const getLength = [](int year) { return std::chrono::year(year).is_leap() ? 366 : 365; };
    int year = date.GetYear();
    int index = date.GetDayOfYear() - 1 + days;
    while (index < 0)
        index += getLength(--year);
    for (; index >= getLength(year); ++year)
        index -= getLength(year);
    year_month_day const result(sys_days(std::chrono::year(year) / 1 / 1) + std::chrono::days(index));
    return VekDateEx(static_cast<int>(static_cast<unsigned>(result.day())),
                     static_cast<int>(static_cast<unsigned>(result.month())), year);
}

TEST(VekDateEx, DaysAreAddedAsYearByYear)
{
    for (VekDateEx const& date : { VekDateEx(29, 2, 2024), VekDateEx(31, 2, 2023), VekDateEx(0, 13, 2000) })
        for (int days = -200'000; days <= 200'000; ++days)
        {
            VekDateEx sum = date;
            sum.AddDays(days);
            ASSERT_TRUE(days == 0 ? sum == date : sum == AddDaysYearByYear(date, days)) << days;
        }
}

TEST(VekDateEx, AddsAcrossTheEndsAndToDaysThatAreNotThere)
{
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    // clang-format off
    Rows<VekDateEx, int, int, VekDateEx> const rows = {
        { { 31, 12, 65535 }, 1, 0, { 1, 1, 0 } }, { { 1, 1, 0 }, -1, 0, { 31, 12, 65535 } },
        { { 29, 2, 2024 }, max, 0, { 8, 9, 48930 } }, { { 29, 2, 2024 }, min, 0, { 20, 8, 20653 } },
        { { 31, 2, 2023 }, 0, 0, { 31, 2, 2023 } }, { { 31, 2, 2023 }, 1, 0, { 4, 3, 2023 } },
        { {}, 1, 0, { 2, 12, 65535 } }, { { 255, 255, 2023 }, 1, 0, { 1, 11, 2044 } },
        { { 31, 1, 2024 }, 0, 1, { 29, 2, 2024 } }, { { 31, 1, 2024 }, 0, -1, { 31, 12, 2023 } },
        { { 31, 12, 65535 }, 0, 2, { 29, 2, 0 } }, { { 1, 1, 0 }, 0, -1, { 1, 12, 65535 } },
        { { 31, 1, 2024 }, 0, max, { 31, 8, 45714 } }, { { 31, 1, 2024 }, 0, min, { 31, 5, 23869 } },
        { { 0, 13, 2000 }, 0, 1, { 0, 2, 2001 } },
    };
    // clang-format on
    for (auto const& [from, days, months, to] : rows)
    {
        VekDateEx sum = from;
        sum.AddDays(days);
        sum.AddMonths(months);
        EXPECT_EQ(sum, to) << testing::PrintToString(from);
    }
    EXPECT_EQ(VekDateEx(255, 255, 2023).GetDayOfYear(), 7975);
    EXPECT_EQ(VekDateEx().GetDayOfYear(), -30);
    EXPECT_EQ(VekDateEx().GetDayOfWeek(), DayOfWeek::Wednesday);
}

TEST(VekDateEx, YearsAndMonthsBetween)
{
    auto const later = [](VekDateEx const& date, int months)
    {
        int const month = date.GetMonth() - 1 + months;
        return VekDateEx(date.GetDay(), month % 12 + 1, date.GetYear() + month / 12);
    };
    for (VekDateEx const from : { VekDateEx(29, 2, 2020), VekDateEx(28, 2, 2021), VekDateEx(31, 12, 1999) })
        for (int days = 0; days <= 200'000; days += 13)
        {
            VekDateEx to = from;
            to.AddDays(days);
            int const years = VekDateEx::GetYearsBetween(from, to);
            ASSERT_TRUE(later(from, 12 * years) <= to && to < later(from, 12 * years + 12)) << days;
            ASSERT_EQ(VekDateEx::GetYearsBetween(to, from), -years);
            int const months = VekDateEx::GetMonthsBetween(from, to);
            ASSERT_TRUE(later(from, months) <= to && to < later(from, months + 1)) << days;
            ASSERT_EQ(VekDateEx::GetMonthsBetween(to, from), -months);
        }
    EXPECT_EQ(VekDateEx::GetYearsBetween({ 2, 1, 0 }, { 1, 1, 65535 }), 65534);
}

TEST(VekDateEx, InvalidDatesHaveNoDistance)
{
    VekDateEx const valid(1, 3, 2024);
    for (VekDateEx const bad : { VekDateEx(), VekDateEx(29, 2, 1900), VekDateEx(0, 1, 2024), VekDateEx(1, 13, 2024),
                                 VekDateEx(1, 0, 2024), VekDateEx(31, 4, 2024) })
    {
        EXPECT_FALSE(bad.IsValid(true));
        EXPECT_EQ(bad.IsValid(false), bad.IsZero());
        EXPECT_FALSE(bad.IsDateBetween({ 1, 1, 0 }, { 1, 1, 3000 }, true) || bad.IsDateBetween(bad, bad, true));
        EXPECT_FALSE(VekDateEx::IsOneYearBetween({ 1, 3, 2023 }, bad) || VekDateEx::IsOneYearBetween(bad, valid));
        for (auto between : { &VekDateEx::GetDaysBetween, &VekDateEx::GetMonthsBetween, &VekDateEx::GetYearsBetween })
            EXPECT_TRUE(between(bad, { 1, 1, 2000 }) == 0 && between({ 1, 1, 2000 }, bad) == 0);
    }
    EXPECT_EQ(VekDateEx::Compare({ 10, 5, 2024 }, { 3, 5, 2024 }), 7);
    EXPECT_EQ(VekDateEx::DayInYearToDate(0, 2024), VekDateEx(0, 1, 2024));
    EXPECT_TRUE(VekDateEx::DayInYearToDate(-1, 2024).IsZero() && VekDateEx::DayInYearToDate(366, 2023).IsZero());
}

TEST(VekDateEx, BetweenBoundsInEitherOrder)
{
    VekDateEx const days[] = { {}, { 1, 1, 2024 }, { 2, 1, 2024 }, { 3, 1, 2024 } };
    // A day and its bounds by their place above.
    Rows<int, int, int, bool, bool> const rows = {
        { 2, 1, 3, true, true },   { 2, 3, 1, true, true },   { 1, 1, 3, true, false },
        { 3, 1, 3, true, false },  { 3, 2, 1, false, false }, { 1, 0, 3, true, true }, // open below
        { 3, 0, 3, true, false },  { 1, 1, 0, true, true },   // open above: the lower bound is in
        { 1, 2, 0, false, false }, { 1, 0, 0, false, false }, // open on both sides is below zero
    };
    for (auto const& [date, from, to, inclusive, open] : rows)
    {
        SCOPED_TRACE(testing::Message() << date << " between " << from << " and " << to);
        EXPECT_EQ(days[date].IsDateBetween(days[from], days[to], true), inclusive);
        EXPECT_EQ(days[date].IsDateBetween(days[from], days[to], false), open);
    }
}

TEST(VekDateEx, EachQuarterConversionHasItsOwnAnswerToNone)
{
    EXPECT_TRUE(VekDateEx().GetQuartal() == 1 && VekDateEx(1, 4, 2024).GetQuartal() == 2);
    for (unsigned int month = 0; month <= 13; ++month)
        EXPECT_EQ(VekDateEx::ConvertMonatToQuartal(month), month <= 12 ? (month + 2) / 3 : 0);
    for (unsigned int quarter = 0; quarter <= 5; ++quarter)
    {
        bool const isOne = quarter >= 1 && quarter <= 4;
        EXPECT_EQ(VekDateEx::ConvertQuartalToMonat(quarter), isOne ? 3 * quarter - 2 : 0);
        EXPECT_EQ(VekDateEx::GetMonatsbeginnVonQuartal(quarter), isOne ? 3 * quarter - 2 : 1);
        EXPECT_EQ(VekDateEx::GetMonatsendeVonQuartal(quarter), isOne ? 3 * quarter : 12);
    }
}
