// From double and back against the prescribed steps, written down with decNumber.

#include <Utilities/Decimal.h>

#include "RandomDecimal.h"

namespace
{

using Vek::Framework::Utilities::Decimal;

decNumber PowerOfTwo(int exponent)
{
    decContext context = Plain::MakeContext();
    decNumber two;
    decNumber power;
    decNumber result;
    decNumberFromInt32(&two, 2);
    decNumberFromInt32(&power, exponent);
    decNumberPower(&result, &two, &power, &context);
    return result;
}

decNumber Multiply(decNumber const& a, decNumber const& b)
{
    decContext context = Plain::MakeContext();
    decNumber result;
    decNumberMultiply(&result, &a, &b, &context);
    return result;
}

/// Sets the lowest digits to zero one by one, each carrying into the next from 5 on; answers the last carry.
int DropDigits(decNumber& number, int drop)
{
    std::vector<std::uint8_t> digits(static_cast<std::size_t>(number.digits));
    decNumberGetBCD(&number, digits.data());
    int carry = 0;
    for (int i = 0; i < drop; ++i)
    {
        std::uint8_t& digit = digits[digits.size() - 1 - static_cast<std::size_t>(i)];
        carry = digit + carry >= 5 ? 1 : 0;
        digit = 0;
    }
    decNumberSetBCD(&number, digits.data(), static_cast<std::uint32_t>(digits.size()));
    return carry;
}

Decimal FromDoublePlainly(double value)
{
    decContext context = Plain::MakeContext();
    int exponent = 0;
    auto const bits = static_cast<long long>(std::frexp(value, &exponent) * 4503599627370496.0);
    decNumber mantissa;
    decNumberFromString(&mantissa, std::to_string(bits).c_str(), &context);
    decNumber number = Multiply(mantissa, PowerOfTwo(exponent - 52));

    int const kept = std::max(0, 14 - ((exponent * 19728) >> 16));
    int const drop = -(number.exponent + kept);
    if (drop >= 1 && DropDigits(number, drop) != 0)
    {
        decNumber unit;
        decNumberFromInt32(&unit, value < 0 ? -1 : 1);
        unit.exponent = -kept;
        decNumber const rest = number;
        decNumberAdd(&number, &rest, &unit, &context);
    }
    decNumber reduced;
    decNumberReduce(&reduced, &number, &context);
    return Plain::Encode(reduced);
}

double ToDoublePlainly(Decimal const& value)
{
    decNumber const number = Plain::Decode(value);
    int const shift = static_cast<int>((16.65355977452702 - (number.digits + number.exponent)) * 3.321928094887362);
    decNumber const whole = Plain::Rescale(Multiply(number, PowerOfTwo(shift)), 0);
    auto const magnitude = static_cast<long long>(Plain::GetMagnitude(whole));
    return std::ldexp(static_cast<double>(decNumberIsNegative(&whole) ? -magnitude : magnitude), -shift);
}

/// Any double, an amount, or a power of two and its neighbours.
double NextDouble(RandomDecimal& random)
{
    auto const bits = std::uint64_t{ random.Below(0xFFFFFFFF) } << 32U | random.Below(0xFFFFFFFF);
    auto const any = std::bit_cast<double>(bits);
    switch (random.Below(4))
    {
    case 0:
        return std::isfinite(any) ? any : 1.0 / 3.0;
    case 1:
        return static_cast<double>(static_cast<std::int64_t>(bits) >> 30) / 100.0;
    case 2:
        return static_cast<double>(random.Below(100'000'000)) * 1e-4;
    default:
        return std::nextafter(std::ldexp(1.0, static_cast<int>(random.Below(2000)) - 1000),
                              random.Below(2) == 0 ? 0.0 : 2.0);
    }
}

bool IsSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

TEST(DecimalDouble, BothWaysFollowTheirSteps)
{
    RandomDecimal random(20);
    for (unsigned i = 0; i < GetDifferentialCases() / 4; ++i)
    {
        double const value = NextDouble(random);
        Decimal const decimal(value);
        ASSERT_TRUE(Plain::HasSameBits(decimal, value == 0 ? Decimal() : FromDoublePlainly(value)))
            << std::hexfloat << value << " gives " << Plain::Print(decimal);

        Decimal const from = i % 2 == 0 ? random.Next() : decimal;
        decNumber const number = Plain::Decode(from);
        bool const isSpecial = decNumberIsSpecial(&number); // however it is written
        double const expected = isSpecial ? Plain::Encode(number).ToDouble() : ToDoublePlainly(from);
        ASSERT_TRUE(IsSame(from.ToDouble(), expected))
            << Plain::Print(from) << " gives " << std::hexfloat << from.ToDouble() << ", not " << expected;
    }
}

TEST(DecimalDouble, SpecialValues)
{
    double const infinity = std::numeric_limits<double>::infinity();
    Rows<double, char const*, double, char const*> const rows = {
        { 0.1, "0.1", 0.1, "what was meant" },
        { 100.0, "1E+2", 100.0, "nor before the point" },
        { 0x1.0000000000001p52, "4503599627370496", 0x1p52, "2^52 + 1 loses its last bit" },
        { 0x1.2c8752ae1889cp-37, "8.5415366967147E-12", 0x1.2c8752ae1888p-37, "the digits dropped begin with fours" },
        { -0.0, "0", 0.0, "no signed zero" },
        { infinity, "Infinity", infinity, "stays" },
        { -infinity, "-Infinity", infinity, "comes back positive" },
    };
    for (auto const& [value, text, back, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(Plain::Print(Decimal(value)), text);
        EXPECT_TRUE(IsSame(Decimal(value).ToDouble(), back));
    }
    EXPECT_EQ(Plain::Print(Decimal(-std::numeric_limits<double>::quiet_NaN())), "NaN");
    EXPECT_EQ(std::bit_cast<std::uint64_t>(Plain::Scan("-NaN5").ToDouble()), 0x7FF8000000000000U);
    EXPECT_EQ(Plain::Print(Decimal(1.0 / 3.0)), "0.333333333333333");
}
