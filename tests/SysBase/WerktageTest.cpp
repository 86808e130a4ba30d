#include <SysBase/Werktage.h>

#include "FreeDayList.h"
#include "PrintDate.h"

#include <SysBase/TargetTage.h>

#include <gtest/gtest.h>

#include <limits>

namespace Tests
{

using namespace VekSysBase;

namespace
{

/// Working days by number, and for every day how many there are up to it.
struct Numbered
{
    std::vector<VekDateEx> werktage;
    std::vector<int> upTo;
};

Numbered Number(std::vector<ListedDay> const& list, bool forBanks)
{
    Numbered numbered;
    for (ListedDay const& day : list)
    {
        if (!day.IsFree(forBanks))
            numbered.werktage.push_back(day.date);
        numbered.upTo.push_back(static_cast<int>(numbered.werktage.size()));
    }
    return numbered;
}

} // namespace

TEST(Werktage, CountedOneByOne)
{
    std::vector<ListedDay> const list = ListDays(1990, 2039);
    constexpr std::size_t margin = 1000;
    for (bool const forBanks : { false, true })
    {
        auto const add = forBanks ? AddBankwerktage : AddWerktage;
        auto const getBetween = forBanks ? GetBankwerktageBetween : GetWerktageBetween;
        Numbered const numbered = Number(list, forBanks);
        for (std::size_t i = margin; i < list.size() - margin; ++i)
        {
            VekDateEx const date = list[i].date;
            bool const isFree = list[i].IsFree(forBanks);
            ASSERT_EQ((forBanks ? IsBankwerktag : IsWerktag)(date), !isFree);
            ASSERT_EQ(add(date, 0), date);
            for (int const number : { 1, 2, 5, 61, 600 })
            {
                int const last = numbered.upTo[i];
                ASSERT_EQ(add(date, number), numbered.werktage[static_cast<std::size_t>(last + number - 1)])
                    << testing::PrintToString(date) << " + " << number;
                ASSERT_EQ(add(date, -number),
                          numbered.werktage[static_cast<std::size_t>(last - number - (isFree ? 0 : 1))])
                    << testing::PrintToString(date) << " - " << number;
                std::size_t const other = i + static_cast<std::size_t>(number);
                ASSERT_EQ(getBetween(date, list[other].date), numbered.upTo[other] - last);
                ASSERT_EQ(getBetween(list[other].date, date), last - numbered.upTo[other]);
            }
        }
    }
}

TEST(Werktage, FarAwayAndBack)
{
    VekDateEx const start(2, 1, 1900);
    VekDateEx const end = AddWerktage(start, 15'000'000);
    EXPECT_EQ(GetWerktageBetween(start, end), 15'000'000);
    EXPECT_EQ(AddWerktage(end, -15'000'000), start);
    EXPECT_TRUE(AddWerktage({ 1, 1, 2024 }, std::numeric_limits<int>::min()).IsValid(true));
    VekDateEx const bad(31, 2, 2024);
    EXPECT_TRUE(AddWerktage(bad, 1).IsZero() && AddBankwerktage(VekDateEx(), 0).IsZero());
    EXPECT_FALSE(IsWerktag(bad) || IsBankwerktag(VekDateEx()));
    EXPECT_EQ(GetWerktageBetween(bad, { 1, 1, 2024 }), 0);
}

TEST(TargetTage, AroundClosingDays)
{
    // Good Friday is 29 March 2024, Easter Monday 1 April.
    VekDateEx const thursday(28, 3, 2024);
    VekDateEx const tuesday(2, 4, 2024);
    for (VekDateEx closed(29, 3, 2024); closed < tuesday; closed.AddDays(1))
    {
        EXPECT_FALSE(IsTargetTag(closed));
        EXPECT_EQ(GetCurrentOrNextTargetTag(closed), tuesday);
        EXPECT_EQ(GetCurrentOrPreviousTargetTag(closed), thursday);
        EXPECT_EQ(AddTargetTage(closed, 1), tuesday);
        EXPECT_EQ(AddTargetTage(closed, -1), thursday);
    }
    EXPECT_EQ(GetCurrentOrNextTargetTag(tuesday), tuesday);
    EXPECT_EQ(GetCurrentOrPreviousTargetTag(tuesday), tuesday);
    EXPECT_EQ(AddTargetTage(thursday, 2), VekDateEx(3, 4, 2024));
    EXPECT_TRUE(IsTargetTag({ 26, 10, 2023 }) && IsTargetTag({ 24, 12, 2024 })); // free in Austria, open in TARGET
    EXPECT_TRUE(GetCurrentOrNextTargetTag(VekDateEx()).IsZero() && !IsTargetTag(VekDateEx()));
}

} // namespace Tests
