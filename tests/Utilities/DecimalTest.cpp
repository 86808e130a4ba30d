#include <Utilities/Decimal.h>

#include "RandomDecimal.h"

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
    EXPECT_EQ(Plain::Print(s_zero) + Plain::Print(Decimal::Zero()) + Plain::Print(ULLONG_MAX),
              "0018446744073709551615");
    for (int const exponent : { INT_MIN, -6195, -6177, -6176, 0, 6111, 6112, 6126, 6144, 6145, INT_MAX })
        for (long long const digits : { LLONG_MIN, -1LL, 0LL, 4LL, 5LL, 12LL, LLONG_MAX })
        {
            std::string const text = std::to_string(digits) + "E" + std::to_string(exponent);
            EXPECT_TRUE(Plain::HasSameBits(Decimal(digits, exponent), Plain::Scan(text))) << text;
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

TEST(Decimal, RoundTakesAnyCount)
{
    for (int const digits : { INT_MIN, INT_MAX })
        EXPECT_EQ(Plain::Print(Decimal(1).Round(digits, RoundMode::TowardZero, true)), "NaN");
    EXPECT_THROW(Decimal(1).Round(0, static_cast<RoundMode>(3), true), Vek::EnumOutOfRangeException);
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
