#include <Utilities/Decimal.h>

#include <Exceptions/EnumOutOfRangeException.h>

#include <gtest/gtest.h>

#include <climits>

#include "RandomDecimal.h"

namespace Tests
{

namespace
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::RoundMode;

constinit Decimal const s_zero;

template <class... Types>
constexpr bool c_areTaken = (std::is_convertible_v<Types, Decimal> && ...);
template <class... Types>
constexpr bool c_areRefused = !(std::is_constructible_v<Decimal, Types> || ...);
template <class... Types>
constexpr bool c_areAskedFor = ((std::is_constructible_v<Types, Decimal> &&
                                 !std::is_convertible_v<Decimal, Types>)&&...);

static_assert(c_areTaken<signed char, unsigned char, short, unsigned short, int, unsigned, long, unsigned long,
                         long long, unsigned long long, float, double>);
static_assert(c_areRefused<bool, char, wchar_t, char8_t, char16_t, char32_t, char const*, void*>);
static_assert(c_areAskedFor<int, unsigned, long, long long, std::int64_t>);
static_assert(sizeof(Decimal) == 16 && std::is_trivially_copyable_v<Decimal>);

} // namespace

TEST(Decimal, Construction)
{
    struct Row
    {
        Decimal value;
        char const* text;
        char const* why;
    };
    Row const rows[] = {
        { s_zero, "0", "before any code runs" },
        { Decimal::Zero(), "0", "the shared one" },
        { LLONG_MIN, "-9223372036854775808", "nor a 64-bit one" },
        { ULLONG_MAX, "18446744073709551615", "above the signed ones" },
        { Decimal(LLONG_MIN, 6112), "-9.2233720368547758080E+6130", "folded to more zeros" },
        { Decimal(1, 6144), "1.000000000000000000000000000000000E+6144", "as many as there is room for" },
        { Decimal(-1, 6145), "-Infinity", "and no more" },
        { Decimal(5, -6177), "1E-6176", "half of the least number" },
        { Decimal(4, -6177), "0E-6176", "less than half of it" },
        { Decimal(12, INT_MAX), "Infinity", "any exponent" },
        { Decimal(12, INT_MIN), "0E-6176", "any exponent" },
        { Decimal(0, INT_MAX), "0E+6111", "zero has no size" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(Plain::Print(row.value), row.text);
    }
}

TEST(Decimal, OperatorsTakeEveryNumber)
{
    Decimal price(1250, -2);
    price += 1;
    price -= 0.5;
    price *= 2U;
    price /= 4LL;
    EXPECT_EQ(Plain::Print(price), "6.50");
    EXPECT_EQ(price.ToString(L',', L'.') + (price * 1000).ToString(L',', L'.') + price.ToString(L','),
              L"6,506.500,006,50");
    EXPECT_EQ(static_cast<double>(price), 6.5);
    EXPECT_EQ(Plain::Print(+Decimal(3, 2)) + Plain::Print(+-Decimal(0)), "3E+20");
    EXPECT_TRUE(2 * price == 13 && 6.5 == price && 1 / Decimal(8) == 0.125 && 7 > price && 7 != price);
    price -= price;
    EXPECT_EQ(Plain::Print(price), "0.00");
}

TEST(Decimal, NaNEqualsEverything)
{
    for (char const* text : { "NaN", "-NaN7", "sNaN" })
    {
        Decimal const nan = Plain::Scan(text);
        EXPECT_TRUE(nan == 1 && nan == nan && nan <= -1 && nan >= Plain::Scan("Infinity"));
        EXPECT_FALSE(nan != 1 || nan < 1 || nan > 1);
    }
}

TEST(Decimal, RoundAtTheEndsOfItsArguments)
{
    struct Row
    {
        char const* value;
        int digits;
        RoundMode mode;
        char const* text;
        char const* why;
    };
    Row const rows[] = {
        { "0.1", -6111, RoundMode::AwayFromZero, "1E+6111", "the greatest exponent" },
        { "0.1", -6112, RoundMode::AwayFromZero, "1.0E+6112", "folded" },
        { "0.1", -6145, RoundMode::AwayFromZero, "NaN", "one that no number has" },
        { "0", 6177, RoundMode::TowardZero, "NaN", "one that no number has" },
        { "1", INT_MAX, RoundMode::TowardZero, "NaN", "any count" },
        { "1", INT_MIN, RoundMode::TowardZero, "NaN", "whose negative is no int" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(Plain::Print(Plain::Scan(row.value).Round(row.digits, row.mode, true)), row.text);
    }
    EXPECT_THROW(Decimal(1).Round(0, static_cast<RoundMode>(3), true), Vek::EnumOutOfRangeException);
}

TEST(Decimal, IntegersWrapOnlyAt64Bits)
{
    struct Row
    {
        char const* value;
        long long wide;
        int narrow;
        char const* why;
    };
    Row const rows[] = {
        { "2147483647.5", 2147483648, 0, "rounds out of 32 bits" },
        { "18446744073709551621", 5, 0, "2^64 + 5" },
        { "9999999999999999999999999999999999", 4003012203950112767, 0, "34 digits modulo 2^64" },
        { "NaN123", 0, 0, "a payload is no number" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(static_cast<long long>(Plain::Scan(row.value)), row.wide);
        EXPECT_EQ(static_cast<int>(Plain::Scan(row.value)), row.narrow);
    }
}

/// Any 128 bits, a third of them Infinity or NaN; most hold declets that no number is written with.
Decimal NextPattern(RandomDecimal& random, unsigned kind)
{
    std::uint64_t words[] = { random.NextWord(), random.NextWord() };
    if (kind % 3 == 0)
        words[1] |= std::uint64_t{ 0x78 } << 56U;
    return std::bit_cast<Decimal>(words);
}

TEST(Decimal, EveryPatternIsANumber)
{
    auto const expectSame = [](Decimal const& result, Decimal const& expected) // however it is written
    { ASSERT_EQ(Plain::Print(result), Plain::Print(expected)); };
    RandomDecimal random(30);
    for (unsigned i = 0; i < GetDifferentialCases() / 20; ++i)
    {
        Decimal const a = NextPattern(random, i);
        Decimal const b = i % 4 == 0 ? random.Next() : NextPattern(random, i / 4);
        SCOPED_TRACE(Plain::Print(a) + " and " + Plain::Print(b));
        expectSame(a + b, Plain::Apply(decNumberAdd, a, b));
        expectSame(a - b, Plain::Apply(decNumberSubtract, a, b));
        expectSame(a * b, Plain::Apply(decNumberMultiply, a, b));
        expectSame(a / b, Plain::Apply(decNumberDivide, a, b));
        expectSame(-a, Plain::Apply(decNumberMinus, a));
        expectSame(a.Max(b), Plain::Apply(decNumberMax, a, b));
        expectSame(a.Min(b), Plain::Apply(decNumberMin, a, b));
        ASSERT_EQ(a.CompareTo(b), Plain::Compare(a, b));
        ASSERT_EQ(a.GetFractionalDigits(), std::max(0, -Plain::Decode(a).exponent));
        decNumber const whole = Plain::Rescale(Plain::Decode(a), 0);
        expectSame(a.Round(0, RoundMode::HalfAwayFromZero, true), Plain::Encode(whole));
        std::uint64_t const magnitude = Plain::GetMagnitude(whole);
        ASSERT_EQ(static_cast<std::uint64_t>(static_cast<long long>(a)),
                  decNumberIsNegative(&whole) ? 0 - magnitude : magnitude);
        int const exponent = Plain::Decode(a).exponent + static_cast<int>(random.Below(40)) - 5;
        Decimal const cut = Plain::Encode(Plain::Rescale(Plain::Decode(a), exponent, DEC_ROUND_DOWN));
        expectSame(a.Round(-exponent, RoundMode::TowardZero, false), Plain::Apply(decNumberReduce, cut));
        if (i % 16 == 0)
            expectSame(a.Pow(b), Plain::Apply(decNumberPower, a, b));
        Decimal const canonical = Plain::Encode(Plain::Decode(a));
        ASSERT_EQ(a.ToString(L'.', {}), canonical.ToString(L'.', {}));
        ASSERT_EQ(std::bit_cast<std::uint64_t>(a.ToDouble()), std::bit_cast<std::uint64_t>(canonical.ToDouble()));
    }
}

} // namespace Tests
