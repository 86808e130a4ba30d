// The business calendar against a plain list of days, made from the rules as they are told and from another way to
// Easter.
#include <SysBase/Feiertage.h>
#include <SysBase/TargetTage.h>
#include <SysBase/VekDateEnv.h>
#include <SysBase/Werktage.h>

#include "PrintDate.h"

namespace
{

using namespace VekSysBase;

class Calendar : public VekDateEnv
{
public:
    using VekDateEnv::GetFreeBankwerktag;
    using VekDateEnv::GetFreeWerktag;
};

struct ListedDay
{
    VekDateEx date;
    bool isFeiertag;
    bool isWeekend;

    bool IsFree(bool forBanks) const
    {
        return isFeiertag || isWeekend || (forBanks && date.GetDay() == 24 && date.GetMonth() == 12);
    }
};

/// Easter Sunday by Meeus' rule (after Butcher's of 1876).
VekDateEx GetEasterByMeeus(int year)
{
    int const a = year % 19;
    int const b = year / 100;
    int const c = year % 100;
    int const h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    int const l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    int const m = (a + 11 * h + 22 * l) / 451;
    int const sum = h + l - 7 * m + 114;
    return VekDateEx(sum % 31 + 1, sum / 31, year);
}

std::vector<ListedDay> ListDays(int firstYear, int lastYear)
{
    std::vector<ListedDay> days;
    std::set<std::pair<int, int>> const fixed = { { 1, 1 },  { 6, 1 },  { 1, 5 },   { 15, 8 }, { 26, 10 },
                                                  { 1, 11 }, { 8, 12 }, { 25, 12 }, { 26, 12 } };
    std::set<int> const afterEaster = { 1, 39, 50, 60 };
    for (VekDateEx date(1, 1, firstYear); date.GetYear() <= lastYear; date.AddDays(1))
    {
        bool const isFeiertag =
            fixed.contains({ date.GetDay(), date.GetMonth() }) ||
            afterEaster.contains(date.GetDayOfYear() - GetEasterByMeeus(date.GetYear()).GetDayOfYear());
        days.push_back({ date, isFeiertag, date.GetDayOfWeek() >= DayOfWeek::Saturday });
    }
    return days;
}

TEST(BusinessDays, EasterByAnotherRule)
{
    for (int year = 1583; year <= 65535; ++year)
        ASSERT_EQ(VekDateEnv().GetOstersonntag(static_cast<unsigned int>(year)), GetEasterByMeeus(year));
    for (unsigned int year = 0; year < 1583; ++year)
        ASSERT_EQ(VekDateEnv().GetOstersonntag(year).GetDayOfWeekInt(), 0) << year;
    EXPECT_EQ(VekDateEnv().GetOstersonntag(4'294'967'295), VekDateEx(10, 4, 65535));
}

TEST(BusinessDays, EveryDayIsAsListed)
{
    Calendar const calendar;
    VekDateEx last(31, 12, 1582); // a Friday
    auto feiertage = GetFeiertage(1583);
    auto feiertag = feiertage.begin();
    for (ListedDay const& day : ListDays(1583, 2500))
    {
        ASSERT_EQ(calendar.IsFeiertag(day.date), day.isFeiertag) << testing::PrintToString(day.date);
        ASSERT_EQ(calendar.GetFreeWerktag(day.date), day.IsFree(false)) << testing::PrintToString(day.date);
        ASSERT_EQ(calendar.GetFreeBankwerktag(day.date), day.IsFree(true)) << testing::PrintToString(day.date);
        last = day.IsFree(true) ? last : day.date;
        ASSERT_EQ(calendar.GetCurrentOrPreviousBankwerktag(day.date), last) << testing::PrintToString(day.date);
        if (feiertag == feiertage.end() && day.date.GetDayOfYear() == 1)
        {
            feiertage = GetFeiertage(day.date.GetYear());
            feiertag = feiertage.begin();
        }
        bool const isNext = feiertag != feiertage.end() && feiertag->date == day.date;
        ASSERT_EQ(isNext, day.isFeiertag) << testing::PrintToString(day.date);
        ASSERT_EQ(GetFeiertag(day.date), isNext ? feiertag->feiertag : Feiertag::None)
            << testing::PrintToString(day.date);
        while (feiertag != feiertage.end() && feiertag->date == day.date) // two may meet on 1 May
            ++feiertag;
    }
}

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t c_startStep = 5; // every year and every day of the week; without sanitizers every day
#else
constexpr std::size_t c_startStep = 1;
#endif

/// The rule of GetNextWerktag as it is told; the count runs on from one number of days to the next.
void CompareWithCountThenSkip(int firstYear, int lastYear, std::size_t maxDays, bool forBanks)
{
    std::vector<ListedDay> const list = ListDays(firstYear, lastYear + 3);
    auto const getNext = forBanks ? &VekDateEnv::GetNextBankwerktag : &VekDateEnv::GetNextWerktag;
    for (std::size_t start = 0; list[start].date.GetYear() <= lastYear; start += c_startStep)
    {
        std::size_t count = 0;
        for (std::size_t days = 0; days <= maxDays; ++days)
        {
            count += list[start + days].IsFree(forBanks) ? 1 : 0;
            std::size_t result = start + days + count;
            while (list[result].IsFree(forBanks))
                ++result;
            VekDateEx const actual = (VekDateEnv().*getNext)(list[start].date, static_cast<unsigned int>(days));
            if (actual != list[result].date)
                FAIL() << testing::PrintToString(list[start].date) << " + " << days << " gives "
                       << testing::PrintToString(actual) << ", not " << testing::PrintToString(list[result].date);
        }
    }
}

TEST(BusinessDays, NextWerktagCountsThenSkips)
{
    for (bool const forBanks : { false, true })
    {
        CompareWithCountThenSkip(1900, 2199, 40, forBanks);
        CompareWithCountThenSkip(2000, 2027, 400, forBanks);
    }
}

TEST(BusinessDays, CountedOneByOne)
{
    std::vector<ListedDay> const list = ListDays(1990, 2039);
    constexpr std::size_t margin = 1200;
    for (bool const forBanks : { false, true })
    {
        auto const add = forBanks ? AddBankwerktage : AddWerktage;
        auto const getBetween = forBanks ? GetBankwerktageBetween : GetWerktageBetween;
        std::vector<VekDateEx> werktage;
        std::vector<std::size_t> before; // every day
        for (ListedDay const& day : list)
        {
            before.push_back(werktage.size());
            if (!day.IsFree(forBanks))
                werktage.push_back(day.date);
        }
        for (std::size_t i = margin; i < list.size() - margin; ++i)
        {
            VekDateEx const date = list[i].date;
            ASSERT_EQ((forBanks ? IsBankwerktag : IsWerktag)(date), !list[i].IsFree(forBanks));
            ASSERT_EQ(add(date, 0), date);
            for (unsigned int number = 0; number <= 600; number += number < 8 ? 1 : 74)
            {
                std::size_t const later = i + number;
                auto const steps = static_cast<int>(number);
                auto const between = static_cast<int>(before[later + 1] - before[i + 1]);
                ASSERT_EQ(getBetween(date, list[later].date), between) << testing::PrintToString(date) << number;
                ASSERT_EQ(getBetween(list[later].date, date), -between) << testing::PrintToString(date) << number;
                if (number == 0)
                    continue;
                ASSERT_EQ(add(date, steps), werktage[before[i + 1] + number - 1])
                    << testing::PrintToString(date) << number;
                ASSERT_EQ(add(date, -steps), werktage[before[i] - number]) << testing::PrintToString(date) << number;
            }
        }
    }
}

TEST(BusinessDays, FarAway)
{
    // Counted year by year: more days than an int holds.
    EXPECT_EQ(VekDateEnv().GetNextWerktag({ 1, 1, 0 }, 4'273'337'980), VekDateEx(21, 12, 41240));
    VekDateEx const start(2, 1, 1900);
    VekDateEx const end = AddWerktage(start, 15'000'000);
    EXPECT_EQ(GetWerktageBetween(start, end), 15'000'000);
    EXPECT_EQ(AddWerktage(end, -15'000'000), start);
    EXPECT_TRUE(AddWerktage({ 1, 1, 2024 }, std::numeric_limits<int>::min()).IsValid(true));
}

TEST(BusinessDays, InvalidDatesKeepTheirFields)
{
    Calendar const calendar;
    VekDateEx const zero;
    EXPECT_FALSE(calendar.IsFeiertag(zero) || calendar.GetFreeWerktag(zero) || calendar.GetFreeBankwerktag(zero));
    EXPECT_EQ(calendar.GetNextWerktag(zero, 0), zero); // a Wednesday by its fields
    EXPECT_EQ(calendar.GetCurrentOrPreviousBankwerktag(zero), zero);
    // 31 April 2024 is no holiday, though 1 May is; both are a Wednesday.
    VekDateEx const bad(31, 4, 2024);
    EXPECT_FALSE(calendar.IsFeiertag(bad) || calendar.GetFreeBankwerktag(bad));
    EXPECT_EQ(calendar.GetNextBankwerktag(bad, 0), bad);
    EXPECT_EQ(calendar.GetNextBankwerktag(bad, 1), VekDateEx(2, 5, 2024));
    EXPECT_EQ(calendar.GetNextWerktag({ 31, 6, 2023 }, 0), VekDateEx(3, 7, 2023)); // a Saturday
    EXPECT_TRUE(AddWerktage(bad, 1).IsZero() && AddBankwerktage(zero, 0).IsZero());
    EXPECT_FALSE(IsWerktag(bad) || IsBankwerktag(zero) || IsTargetTag(zero));
    EXPECT_EQ(GetWerktageBetween(bad, { 1, 1, 2024 }), 0);
    EXPECT_TRUE(GetCurrentOrNextTargetTag(zero).IsZero());
}

TEST(BusinessDays, AroundClosingDaysOfTarget)
{
    // Good Friday is 29 March 2024, Easter Monday 1 April.
    VekDateEx const thursday(28, 3, 2024);
    VekDateEx const tuesday(2, 4, 2024);
    for (VekDateEx closed(29, 3, 2024); closed < tuesday; closed.AddDays(1))
    {
        EXPECT_EQ(GetCurrentOrNextTargetTag(closed), tuesday);
        EXPECT_EQ(GetCurrentOrPreviousTargetTag(closed), thursday);
        EXPECT_EQ(AddTargetTage(closed, -1), thursday);
    }
    EXPECT_EQ(GetCurrentOrNextTargetTag(tuesday), tuesday);
    EXPECT_EQ(AddTargetTage(thursday, 2), VekDateEx(3, 4, 2024));
}

} // namespace
