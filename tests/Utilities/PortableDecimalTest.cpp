#include <Utilities/PortableDecimal.h>

#include "RandomDecimal.h"

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::PortableDecimal;

TEST(PortableDecimal, ToDecimal)
{
    Rows<PortableDecimal, char const*, char const*> const rows = {
        { { 5, 0, 1, -2, true }, "-184467440737095516.21", "2^64 + 5" },
        { { UINT_MAX, UINT_MAX, UINT_MAX, 0, false }, "79228162514264337593543950335", "the greatest coefficient" },
        { { 0, 0, 0, -3, true }, "-0.000", "a zero keeps all" },
        { { 1, 0, 0, 6144, false }, "1.000000000000000000000000000000000E+6144", "folded" },
        { { UINT_MAX, UINT_MAX, UINT_MAX, INT_MAX, true }, "-Infinity", "too great" },
        { { UINT_MAX, UINT_MAX, UINT_MAX, INT_MIN, true }, "-0E-6176", "too small" },
    };
    for (auto const& [value, text, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(Plain::Print(Decimal(value)), text);
    }
}

TEST(PortableDecimal, NineteenDigitsComeBack)
{
    RandomDecimal random(50);
    for (unsigned i = 0; i < GetDifferentialCases() / 10; ++i)
    {
        Decimal const value = random.Next();
        decNumber const number = Plain::Decode(value);
        if (decNumberIsSpecial(&number))
            continue;
        decContext context;
        decContextDefault(&context, DEC_INIT_BASE); // half up, and no exponent is too small
        context.traps = 0;
        context.digits = 19;
        decNumber expected;
        decNumberPlus(&expected, &number, &context);
        PortableDecimal const portable = value.ToPortable();
        SCOPED_TRACE(Plain::Print(value));
        ASSERT_EQ(Decimal(portable).CompareTo(Plain::Encode(expected)), 0);
        ASSERT_EQ(portable.GetExponent(), number.exponent + std::max(0, number.digits - 19));
        ASSERT_EQ(portable.IsNegative(), decNumberIsNegative(&number) != 0);
    }
    EXPECT_EQ(Plain::Scan("NaN7").ToPortable(), PortableDecimal(0, 0, 0, 0, false));
    EXPECT_NE(PortableDecimal(10, 0, 0, 0, false), PortableDecimal(1, 0, 0, 1, false));
}
