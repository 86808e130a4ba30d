#include <Utilities/Double.h>

using Vek::Framework::Utilities::Double;

TEST(Double, Comparisons)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Rows<double, double, char const*, char const*> const rows = {
        { 1.0, 1.0000009, "= >= <=", "within the tolerance" },
        { 1.000001, 1.0, "= >= <=", "a difference that comes out just below it" },
        { 1.000002, 1.0, "> >=", "greater" },
        { 1.0, 1.000002, "< <=", "smaller" },
        { 1e-6, 0.0, "> >=", "the tolerance itself" },
        { 0.0, 1e-6, "< <=", "and below zero" },
        { infinity, infinity, "= >= <=", "though their difference is none" },
        { infinity, -infinity, "> >=", "far apart" },
        { std::numeric_limits<double>::quiet_NaN(), 1.0, "< <=", "the contrary of a comparison" },
    };
    for (auto const& [a, b, expected, why] : rows)
    {
        SCOPED_TRACE(why);
        std::string answers;
        answers += Double::Equals(a, b) ? "= " : "";
        answers += Double::IsGreater(a, b) ? "> " : "";
        answers += Double::IsGreaterOrEqual(a, b) ? ">= " : "";
        answers += Double::IsSmaller(a, b) ? "< " : "";
        answers += Double::IsSmallerOrEqual(a, b) ? "<= " : "";
        EXPECT_EQ(answers, std::string(expected) + ' ');
    }
    EXPECT_TRUE(Double::IsZero(-0.0) && Double::IsZero(-9.99e-7) && !Double::IsZero(-1e-6));
    EXPECT_TRUE(Double::IsInfinite(-infinity) && !Double::IsInfinite(std::numeric_limits<double>::max()));
    EXPECT_EQ(Double::MinmalSignificant(), 2e-6);
}

TEST(Double, GetHashValue)
{
    // clang-format off
    Rows<double, unsigned long long, char const*> const rows = {
        { 0.00005, 1, "half a ten-thousandth, rounded away from zero" }, { 0.00004, 0, "less" },
        { -0.0001, 18446744073709551615U, "negative ones wrap" },
        { 922337203685477.0, 9223372036854770688U, "below 2^63" },
        { 1e15, 10000000000000000000U, "above 2^63" },
        { 1e16, 9223372036854775808U, "no longer an unsigned number" },
        { -1e16, 9223372036854775808U, "no longer a signed one" },
    };
    // clang-format on
    for (auto const& [value, hash, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(Double::GetHashValue(value), hash);
    }
}
