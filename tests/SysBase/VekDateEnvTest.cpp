#include <SysBase/VekDateEnv.h>

#include "FreeDayList.h"
#include "PrintDate.h"

#include <Utilities/Internal/CivilCalendar.h>

#include <gtest/gtest.h>

#include <utility>

namespace Tests
{

using VekSysBase::VekDateEnv;
using VekSysBase::VekDateEx;

namespace
{

class Calendar : public VekDateEnv
{
public:
    using VekDateEnv::GetFreeBankwerktag;
    using VekDateEnv::GetFreeWerktag;
};

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t c_startStep = 5; // every year and every day of the week; without sanitizers every day
#else
constexpr std::size_t c_startStep = 1;
#endif

/// The rule of GetNextWerktag as it is told, from every day of the years and for every number of days; the count runs
/// on from one number to the next.
void CompareWithCountThenSkip(int firstYear, int lastYear, std::size_t maxDays, bool forBanks)
{
    std::vector<ListedDay> const list = ListDays(firstYear, lastYear + 3);
    Calendar const calendar;
    for (std::size_t start = 0; list[start].date.GetYear() <= lastYear; start += c_startStep)
    {
        std::size_t count = 0;
        for (std::size_t days = 0; days <= maxDays; ++days)
        {
            count += list[start + days].IsFree(forBanks) ? 1 : 0;
            std::size_t result = start + days + count;
            while (list[result].IsFree(forBanks))
                ++result;
            auto const wanted = static_cast<unsigned int>(days);
            VekDateEx const actual = forBanks ? calendar.GetNextBankwerktag(list[start].date, wanted)
                                              : calendar.GetNextWerktag(list[start].date, wanted);
            if (actual != list[result].date)
                FAIL() << testing::PrintToString(list[start].date) << " + " << days << " gives "
                       << testing::PrintToString(actual) << ", not " << testing::PrintToString(list[result].date);
        }
    }
}

} // namespace

TEST(VekDateEnv, EasterByAnotherRule)
{
    for (int year = 1583; year <= 65535; ++year)
    {
        VekDateEx expected(1, 3, year);
        expected.AddDays(GetEasterByMeeus(year));
        ASSERT_EQ(VekDateEnv().GetOstersonntag(static_cast<unsigned int>(year)), expected);
    }
    for (unsigned int year = 0; year < 1583; ++year)
        ASSERT_EQ(VekDateEnv().GetOstersonntag(year).GetDayOfWeekInt(), 0) << year;
    EXPECT_EQ(VekDateEnv().GetOstersonntag(4'294'967'295), VekDateEx(10, 4, 65535));
}

TEST(VekDateEnv, EveryDayIsFreeAsListed)
{
    Calendar const calendar;
    VekDateEx last(31, 12, 1582); // a Friday
    for (ListedDay const& day : ListDays(1583, 2500))
    {
        ASSERT_EQ(calendar.IsFeiertag(day.date), day.isFeiertag) << testing::PrintToString(day.date);
        ASSERT_EQ(calendar.GetFreeWerktag(day.date), day.IsFree(false)) << testing::PrintToString(day.date);
        ASSERT_EQ(calendar.GetFreeBankwerktag(day.date), day.IsFree(true)) << testing::PrintToString(day.date);
        last = day.IsFree(true) ? last : day.date;
        ASSERT_EQ(calendar.GetCurrentOrPreviousBankwerktag(day.date), last) << testing::PrintToString(day.date);
    }
}

TEST(VekDateEnv, NextWerktagCountsThenSkips)
{
    for (bool const forBanks : { false, true })
    {
        CompareWithCountThenSkip(1900, 2199, 40, forBanks);
        CompareWithCountThenSkip(2000, 2027, 400, forBanks);
    }
}

TEST(VekDateEnv, DaysBeyondIntCountAsTheyAre)
{
    using namespace Vek::Framework::Utilities::Internal;
    // Years that agree in Easter and in the leap day have as many free days.
    int freeDays[57][2] = {};
    int inThisYear = 0;
    for (ListedDay const& day : ListDays(1583, 5000))
    {
        inThisYear += day.IsFree(false) ? 1 : 0;
        if (day.date.GetDay() == 31 && day.date.GetMonth() == 12)
            freeDays[GetEasterByMeeus(day.date.GetYear())][IsLeapYear(day.date.GetYear())] =
                std::exchange(inThisYear, 0);
    }
    constexpr int lastYear = 11'700'001;
    long long count = 0;
    for (int year = 0; year <= lastYear; ++year)
        count += freeDays[GetEasterByMeeus(year)][IsLeapYear(year)];
    long long const last = GetDayNumber(lastYear, 12, 31);
    CivilDate const expected = GetCivilDate(last + count); // a Thursday in March
    EXPECT_EQ(VekDateEnv().GetNextWerktag({ 1, 1, 0 }, static_cast<unsigned int>(last - GetDayNumber(0, 1, 1))),
              VekDateEx(expected.day, expected.month, static_cast<int>(expected.year & 0xFFFF)));
}

TEST(VekDateEnv, InvalidDatesKeepTheirFields)
{
    Calendar const calendar;
    VekDateEx const zero;
    EXPECT_FALSE(calendar.IsFeiertag(zero) || calendar.GetFreeWerktag(zero) || calendar.GetFreeBankwerktag(zero));
    EXPECT_EQ(calendar.GetNextWerktag(zero, 0), zero); // a Wednesday by its fields
    EXPECT_EQ(calendar.GetCurrentOrPreviousBankwerktag(zero), zero);
    // 31 April 2024 is no holiday, though 1 May is; both are a Wednesday.
    EXPECT_FALSE(calendar.IsFeiertag({ 31, 4, 2024 }) || calendar.GetFreeBankwerktag({ 31, 4, 2024 }));
    EXPECT_EQ(calendar.GetNextBankwerktag({ 31, 4, 2024 }, 0), VekDateEx(31, 4, 2024));
    EXPECT_EQ(calendar.GetNextBankwerktag({ 31, 4, 2024 }, 1), VekDateEx(2, 5, 2024));
    EXPECT_EQ(calendar.GetNextBankwerktag({ 1, 5, 2024 }, 1), VekDateEx(3, 5, 2024));
    EXPECT_EQ(calendar.GetNextWerktag({ 31, 6, 2023 }, 0), VekDateEx(3, 7, 2023)); // a Saturday
}

} // namespace Tests
