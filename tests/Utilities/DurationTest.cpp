// Spans of time: the worked examples, and what must hold for any of them.

#include <Utilities/DecimalClassification.h>
#include <Utilities/DecimalLiterals.h>
#include <Utilities/Duration.h>

namespace
{

using namespace Vek::Framework::Utilities;

std::wstring ToText(Decimal const& value)
{
    return value.ToString(L'.', {});
}

/// Both parts as text: "months exact".
std::wstring ToText(Duration const& value)
{
    return std::to_wstring(value.GetMonthComponent()) + L" " + ToText(value.GetExactComponent(Duration::Seconds));
}

DateTime At(short year, unsigned char month, unsigned char day)
{
    return DateTime::FromComponents(year, month, day, 0, 0, 0);
}

TEST(Duration, PartsAreKeptApart)
{
    using D = Duration;
    D const month = D::CreateRelative(1, D::Months);
    D taken = D::Zero();
    taken.Substract(45, D::Days);
    D most = D::Zero();
    most.Substract(1e30_dec, D::Months); // more months than an int holds
    D const extreme = D::CreateRelative(INT_MIN, D::Months);
    Rows<Duration, wchar_t const*> const rows = {
        { D::CreateRelative(2, D::Years), L"24 0" },
        { D::CreateRelative(1, D::Hours), L"0 3600" },
        { D::CreateRelative(1.5_dec, D::Weeks), L"0 907200.0" },
        { D::CreateRelative(2, D::Minutes), L"0 120" },
        { D::CreateRelativeFromMonths(-1.5_dec), L"-1 0" },
        { D::CreateRelativeFromMonths(2'147'483'648_dec), L"0 0" },
        { D::CreateRelativeFromMonths(Decimal(1) / 0), L"0 0" },
        { D::CreateExact(At(2024, 1, 1), 1, D::Years), L"0 31104000" },
        { taken, L"-1 -1296000" },
        { most, L"0 -2592000000000000000000000000000000000" },
        { month * 2.5_dec, L"2 1296000.0" },
        { month * -1.5_dec, L"-1 -1296000.0" },
        { month / 2, L"0 1296000.0" },
        { -(month + D::CreateRelative(1, D::Days)), L"-1 -86400" },
        { -extreme, L"-2147483648 0" },
        { extreme - month, L"2147483647 0" },
        { D::CreateRelative(INT_MAX, D::Months) * 3, L"2147483645 0" },
    };
    for (auto const& [value, parts] : rows)
        EXPECT_EQ(ToText(value), parts);
}

TEST(Duration, MeasuresByTheCalendarFromAStart)
{
    using D = Duration;
    D const january(At(2024, 1, 31), 0, 1);
    EXPECT_EQ(ToText(january.GetExact(D::Days)), L"29.0000000");
    EXPECT_EQ(ToText(D(At(2024, 1, 31), 86'400, 1).GetExact(D::Days)), L"30.0000000"); // 1 February and its 29 days
    EXPECT_TRUE(D::CreateRelative(1, D::Months) == D::CreateRelative(30, D::Days));
    EXPECT_TRUE(D(At(2023, 1, 1), 0, 12) == D::CreateRelative(365, D::Days));

    D const days = D::CreateExact(At(2024, 1, 15), 45, D::Days);
    EXPECT_EQ(ToText(days.GetReasonable(D::Months)), L"1.466666666666666666666666666666667");
    EXPECT_EQ(ToText(days.GetReasonable(D::Days)), L"45.0000000");
    D const more = days + D::CreateRelative(2, D::Years);
    EXPECT_EQ(more.GetReasonableMonths(), 25);
    EXPECT_EQ(ToText(more.GetReasonable(D::Years)), L"2.122222222222222222222222222222223");

    D const relative = D::CreateRelative(3, D::Months);
    EXPECT_EQ(relative.GetStart(), nullptr);
    EXPECT_EQ(ToText(relative.GetReasonable(D::Months)), L"3");
    EXPECT_THROW(relative.GetReasonableMonths(), Vek::InvalidStateException);
    EXPECT_THROW(D(DateTime(), -1, 1).GetExact(D::Days), Vek::ArgumentException);
}

TEST(Duration, WorksOnWithoutNumbers)
{
    using D = Duration;
    D const none = D::CreateRelative(Decimal(0) / 0, D::Days);
    D const infinite = D::CreateRelative(Decimal(1) / 0, D::Days);
    EXPECT_TRUE(IsNaN((infinite - infinite).GetExact(D::Days)));
    EXPECT_TRUE(none == D::Zero() && none == infinite); // a NaN equals everything
    EXPECT_TRUE(infinite > D::CreateRelative(1000, D::Years));
    EXPECT_TRUE(IsNaN((D::CreateRelative(1, D::Months) * (Decimal(1) / 0)).GetExact(D::Days)));
    EXPECT_TRUE(IsInfinite((D::CreateRelative(1, D::Days) / 0).GetExact(D::Days)));
    for (int unit : { -1, 7 })
    {
        auto const other = static_cast<D::Unit>(unit);
        D value;
        EXPECT_THROW(D::CreateRelative(1, other), Vek::EnumOutOfRangeException);
        EXPECT_THROW(D::CreateExact(At(2024, 1, 1), 1, other), Vek::EnumOutOfRangeException);
        EXPECT_THROW(value.GetExact(other), Vek::EnumOutOfRangeException);
        EXPECT_THROW(value.GetExactComponent(other), Vek::EnumOutOfRangeException);
        EXPECT_THROW(value.GetReasonable(other), Vek::EnumOutOfRangeException);
        EXPECT_THROW(value.Substract(1, other), Vek::EnumOutOfRangeException);
    }
}

TEST(Duration, HoldsWhatDurationsPromise)
{
    using D = Duration;
    std::mt19937_64 engine(24);
    auto const below = [&engine](long long bound)
    { return std::uniform_int_distribution<long long>(0, bound - 1)(engine); };
    for (int i = 0; i < 5000; ++i)
    {
        DateTime const start = DateTime::FromTicks(
            static_cast<unsigned long long>(below(5'000'000'000'000'000) * 1000 + 1'500'000'000'000'000'000));
        int const digits = static_cast<int>(below(8)); // of the fraction: sums stay exact
        auto const unit = static_cast<long long>(std::pow(10, digits));
        long long const reach = (below(2) == 0 ? 1000 : 100'000'000'000) * unit;
        Decimal const seconds(below(2 * reach) - reach, -digits);
        D const exact = D::CreateRelative(seconds, D::Seconds);
        D const both({}, seconds, static_cast<int>(below(2001)) - 1000);
        D const started(start, seconds, both.GetMonthComponent());
        SCOPED_TRACE(testing::Message() << i << ": " << start.GetTicks() << ", " << seconds.ToDouble() << " s, "
                                        << both.GetMonthComponent() << " months");

        ASSERT_TRUE((start + exact) - start == exact);
        DateTime sum;
        ASSERT_TRUE(start.TryAdd(both, sum));

        // The length from its start is where it leads to; months lose what is below a millisecond.
        Decimal const length = started.GetExact(D::Seconds);
        ASSERT_EQ(start + D::CreateRelative(length, D::Seconds), sum);
        ASSERT_EQ(started < exact, sum < start + exact);

        // Scaling by a whole number is adding; the rest of a fraction goes by days.
        ASSERT_EQ(ToText(both * 3), ToText(both + both + both));
        Decimal const factor(below(4001) - 2000, -2);
        ASSERT_TRUE((both * factor).GetExact(D::Seconds) == both.GetExact(D::Seconds) * factor);

        // What goes from the months and what goes from the exact part is the amount together.
        D rest = both;
        rest.Substract(seconds, D::Hours);
        ASSERT_TRUE(rest == both - D::CreateRelative(seconds, D::Hours));

        // Whole months and their rest.
        D const span = (start + exact) - start;
        int const months = span.GetReasonableMonths();
        Decimal const left = seconds - start.GetDurationInSecondsForNextMonths(months, 0);
        ASSERT_TRUE(span.GetReasonable(D::Months) ==
                    months + (span.GetExact(D::Seconds) - (seconds - left)) / 2'592'000);
    }
}

} // namespace
