#include <SysBase/VekDateEx.h>

#include "PrintDate.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tests
{

using VekSysBase::DayOfWeek;
using VekSysBase::VekDateEx;

namespace
{

constexpr int c_max = std::numeric_limits<int>::max();
constexpr int c_min = std::numeric_limits<int>::min();

bool IsLeapYear(long long year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int GetLength(int month, long long year)
{
    int const lengths[] = { 31, IsLeapYear(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    return lengths[month - 1];
}

VekDateEx Store(long long day, long long month, long long year)
{
    return VekDateEx(static_cast<int>(day), static_cast<int>(month), static_cast<int>(year & 0xFFFF));
}

/// The rule as it is told: year by year, then month by month.
VekDateEx AddDaysYearByYear(VekDateEx date, int days)
{
    if (days == 0)
        return date;
    long long year = date.GetYear();
    long long index = date.GetDayOfYear() - 1LL + days;
    while (index < 0)
        index += IsLeapYear(--year) ? 366 : 365;
    for (; index >= (IsLeapYear(year) ? 366 : 365); ++year)
        index -= IsLeapYear(year) ? 366 : 365;
    int month = 1;
    for (; index >= GetLength(month, year); ++month)
        index -= GetLength(month, year);
    return Store(index + 1, month, year);
}

VekDateEx AddMonthsYearByYear(VekDateEx date, int months)
{
    if (months == 0)
        return date;
    long long year = date.GetYear();
    long long month = date.GetMonth() + static_cast<long long>(months);
    for (; month < 1; month += 12)
        --year;
    for (; month > 12; month -= 12)
        ++year;
    int const length = GetLength(static_cast<int>(month), year);
    return Store(date.GetDay() > length ? length : date.GetDay(), month, year);
}

int CountAnniversaries(VekDateEx const& a, VekDateEx const& b)
{
    if (b < a)
        return -CountAnniversaries(b, a);
    int count = 0;
    for (long long year = a.GetYear() + 1LL;
         year < b.GetYear() || (year == b.GetYear() && (a.GetMonth() < b.GetMonth() ||
                                                        (a.GetMonth() == b.GetMonth() && a.GetDay() <= b.GetDay())));
         ++year)
        ++count;
    return count;
}

VekDateEx Moved(VekDateEx date, int days)
{
    date.AddDays(days);
    return date;
}

VekDateEx MovedMonths(VekDateEx date, int months)
{
    date.AddMonths(months);
    return date;
}

} // namespace

TEST(VekDateEx, DaysAndMonthsAreAddedAsYearByYear)
{
    VekDateEx const leapDay(29, 2, 2024);
    for (int days = -200'000; days <= 200'000; ++days)
        ASSERT_EQ(Moved(leapDay, days), AddDaysYearByYear(leapDay, days)) << days;
    // Across both ends of the years, and from days that are not there.
    for (VekDateEx const date : { VekDateEx(1, 1, 1), VekDateEx(31, 12, 65535), VekDateEx(31, 2, 2023), VekDateEx(),
                                  VekDateEx(255, 255, 65535), VekDateEx(0, 13, 2000) })
        for (int step = -200'000; step <= 200'000; step += 997)
        {
            ASSERT_EQ(Moved(date, step), AddDaysYearByYear(date, step)) << step;
            ASSERT_EQ(MovedMonths(date, step / 40), AddMonthsYearByYear(date, step / 40)) << step;
        }
    for (int const farthest : { c_max, c_min })
    {
        EXPECT_EQ(Moved(leapDay, farthest), AddDaysYearByYear(leapDay, farthest));
        EXPECT_EQ(MovedMonths({ 31, 1, 2024 }, farthest), AddMonthsYearByYear({ 31, 1, 2024 }, farthest));
    }
    for (int i = 0; i < 100'000; ++i) // a step per year would take minutes
        ASSERT_EQ(VekDateEx::GetYearsBetween({ 2, 1, 0 }, { 1, 1, 65535 }), 65534);
}

TEST(VekDateEx, DayOfYearAndOfWeekFollowTheirFormulas)
{
    auto const floorDivide = [](int a, int b) { return a / b - (a % b < 0 ? 1 : 0); };
    for (int year = 0; year <= 65535; year += year < 2100 ? 1 : 61)
        for (int month = 0; month <= 255; month += month < 15 ? 1 : 30)
            for (int const day : { 0, 1, 29, 31, 255 })
            {
                VekDateEx const date(day, month, year);
                int const later = (month + 10) / 13;
                int const dayOfYear = day + (month + 2) * 611 / 20 - 2 * later - 91 + (IsLeapYear(year) ? later : 0);
                ASSERT_EQ(date.GetDayOfYear(), dayOfYear) << testing::PrintToString(date);
                int const c = floorDivide(year - 1, 100);
                int const r = year - 1 - 100 * c;
                int const sum = dayOfYear + floorDivide(c, 4) + r + 5 * c + r / 4 + 28;
                ASSERT_EQ(date.GetDayOfWeekInt(), (sum % 7 + 7) % 7) << testing::PrintToString(date);
                ASSERT_EQ(date.GetDayOfWeek(), static_cast<DayOfWeek>((date.GetDayOfWeekInt() + 6) % 7));
            }
}

TEST(VekDateEx, EveryDayOfACycleBetweenItsNeighbours)
{
    VekDateEx date(31, 12, 1799);
    int dayOfWeek = date.GetDayOfWeekInt();
    for (int i = 0; i < 146'097 + 365; ++i)
    {
        VekDateEx const before = date;
        date.AddDays(1);
        bool const isNewYear = before.GetYear() != date.GetYear();
        ASSERT_TRUE(before < date && date.IsValid(true) && date > before && date != before);
        ASSERT_LT(VekDateEx::Compare(before, date), 0);
        ASSERT_EQ(date.GetDayOfYear(), isNewYear ? 1 : before.GetDayOfYear() + 1);
        ASSERT_TRUE(!isNewYear || before.GetDayOfYear() == before.GetDaysInYear());
        ASSERT_EQ(date.GetDayOfWeekInt(), dayOfWeek = (dayOfWeek + 1) % 7);
        ASSERT_EQ(VekDateEx::DayInYearToDate(date.GetDayOfYear(), date.GetYear()), date);
        ASSERT_EQ(VekDateEx::GetDaysBetween({ 1, 1, 1800 }, date), i);
        ASSERT_EQ(VekDateEx::GetDaysBetween(date, { 1, 1, 1800 }), -i);
        bool const isFebruaryEnd = before.GetMonth() == 2 && date.GetMonth() == 3;
        ASSERT_EQ(before.GetYearBefore(),
                  VekDateEx(isFebruaryEnd ? GetLength(2, before.GetYear() - 1) : before.GetDay(), before.GetMonth(),
                            before.GetYear() - 1));
        // A year that ends on the day before: from the same day, and from the leap day a day earlier.
        VekDateEx const start(date.GetDay(), date.GetMonth(), date.GetYear() - 1);
        ASSERT_EQ(VekDateEx::IsOneYearBetween(start, before), start.IsValid(true));
        if (date.GetMonth() != 2 || date.GetDay() != 28)
            continue;
        ASSERT_EQ(VekDateEx::IsOneYearBetween({ 29, 2, date.GetYear() - 1 }, before), IsLeapYear(date.GetYear() - 1));
    }
}

TEST(VekDateEx, YearsAndMonthsBetween)
{
    for (VekDateEx const from : { VekDateEx(29, 2, 2020), VekDateEx(28, 2, 2021), VekDateEx(31, 12, 1999) })
        for (int days = -200'000; days <= 200'000; days += 13)
        {
            VekDateEx const to = Moved(from, days);
            ASSERT_EQ(VekDateEx::GetYearsBetween(from, to), CountAnniversaries(from, to)) << days;
            VekDateEx const& lo = days < 0 ? to : from;
            VekDateEx const& hi = days < 0 ? from : to;
            int const months = VekDateEx::GetMonthsBetween(lo, hi);
            int const all = 12 * (hi.GetYear() - lo.GetYear()) + hi.GetMonth() - lo.GetMonth();
            ASSERT_EQ(months, hi.GetDay() < lo.GetDay() ? all - 1 : all) << days;
            ASSERT_EQ(VekDateEx::GetMonthsBetween(hi, lo), -months);
        }
}

TEST(VekDateEx, InvalidDatesHaveNoDistance)
{
    VekDateEx const valid(1, 3, 2024);
    for (VekDateEx const bad : { VekDateEx(), VekDateEx(29, 2, 1900), VekDateEx(0, 1, 2024), VekDateEx(1, 13, 2024),
                                 VekDateEx(1, 0, 2024), VekDateEx(31, 4, 2024) })
    {
        EXPECT_FALSE(bad.IsValid(true));
        EXPECT_EQ(bad.IsValid(false), bad.IsZero());
        EXPECT_FALSE(bad.IsDateBetween({ 1, 1, 0 }, { 1, 1, 3000 }, true));
        EXPECT_FALSE(bad.IsDateBetween(bad, bad, true));
        EXPECT_FALSE(VekDateEx::IsOneYearBetween({ 1, 3, 2023 }, bad) || VekDateEx::IsOneYearBetween(bad, valid));
        for (auto between : { &VekDateEx::GetDaysBetween, &VekDateEx::GetMonthsBetween, &VekDateEx::GetYearsBetween })
            EXPECT_TRUE(between(bad, { 1, 1, 2000 }) == 0 && between({ 1, 1, 2000 }, bad) == 0);
    }
    EXPECT_TRUE(VekDateEx(29, 2, 2000).IsValid(true));
    EXPECT_EQ(VekDateEx::Compare({ 10, 5, 2024 }, { 3, 5, 2024 }), 7);
    EXPECT_EQ(VekDateEx::DayInYearToDate(0, 2024), VekDateEx(0, 1, 2024));
    EXPECT_TRUE(VekDateEx::DayInYearToDate(-1, 2024).IsZero());
    EXPECT_TRUE(VekDateEx::DayInYearToDate(366, 2023).IsZero());
    EXPECT_EQ(VekDateEx::DayInYearToDate(366, 2024), VekDateEx(31, 12, 2024));
}

TEST(VekDateEx, BetweenBoundsInEitherOrder)
{
    VekDateEx const zero;
    VekDateEx const days[] = { zero, { 1, 1, 2024 }, { 2, 1, 2024 }, { 3, 1, 2024 } };
    struct Row
    {
        int date; // of the days above, as the bounds
        int from;
        int to;
        bool inclusive;
        bool open;
        char const* why;
    };
    Row const rows[] = {
        { 2, 1, 3, true, true, "inside" },
        { 2, 3, 1, true, true, "inside, bounds exchanged" },
        { 1, 1, 3, true, false, "the lower bound" },
        { 3, 1, 3, true, false, "the upper bound" },
        { 3, 2, 1, false, false, "outside" },
        { 1, 0, 3, true, true, "open below" },
        { 3, 0, 3, true, false, "open below, the upper bound" },
        { 1, 1, 0, true, true, "open above: the lower bound is in" },
        { 1, 2, 0, false, false, "open above, before it" },
        { 1, 0, 0, false, false, "open on both sides is below zero" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(days[row.date].IsDateBetween(days[row.from], days[row.to], true), row.inclusive);
        EXPECT_EQ(days[row.date].IsDateBetween(days[row.from], days[row.to], false), row.open);
    }
}

TEST(VekDateEx, EachQuarterConversionHasItsOwnAnswerToNone)
{
    EXPECT_TRUE(VekDateEx().GetQuartal() == 1 && VekDateEx(1, 4, 2024).GetQuartal() == 2);
    EXPECT_TRUE(VekDateEx::ConvertMonatToQuartal(0) == 0 && VekDateEx::ConvertMonatToQuartal(13) == 0);
    for (unsigned int month = 1; month <= 12; ++month)
        EXPECT_EQ(VekDateEx::ConvertMonatToQuartal(month), (month + 2) / 3);
    for (unsigned int quarter = 0; quarter <= 5; ++quarter)
    {
        bool const isOne = quarter >= 1 && quarter <= 4;
        EXPECT_EQ(VekDateEx::ConvertQuartalToMonat(quarter), isOne ? 3 * quarter - 2 : 0);
        EXPECT_EQ(VekDateEx::GetMonatsbeginnVonQuartal(quarter), isOne ? 3 * quarter - 2 : 1);
        EXPECT_EQ(VekDateEx::GetMonatsendeVonQuartal(quarter), isOne ? 3 * quarter : 12);
    }
}

} // namespace Tests
