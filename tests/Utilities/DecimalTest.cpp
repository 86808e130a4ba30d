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
