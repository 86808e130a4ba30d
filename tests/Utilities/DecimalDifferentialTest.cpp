// The quick ways of Decimal against decNumber, bit for bit.

#include <Utilities/Decimal.h>

#include "RandomDecimal.h"

namespace
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::RoundMode;

using Operation = std::function<Decimal(Decimal const&, Decimal const&)>;

/// In every bit, unless an operand is written as nobody would: the result may keep that.
bool IsSame(Decimal const& result, Decimal const& expected, Decimal const& a, Decimal const& b)
{
    auto const isUnusual = [](Decimal const& value) { return !Plain::HasSameBits(value, Plain::Rewrite(value)); };
    return Plain::HasSameBits(result, expected) ||
           ((isUnusual(a) || isUnusual(b)) && Plain::HasSameBits(Plain::Rewrite(result), expected));
}

void ExpectSame(Operation const& ours, Operation const& plain, unsigned cases = GetDifferentialCases())
{
    static unsigned s_seed = 0;
    RandomDecimal random(++s_seed);
    for (unsigned i = 0; i < cases; ++i)
    {
        Decimal const a = random.Next();
        Decimal const b = random.Next();
        Decimal const result = ours(a, b);
        Decimal const expected = plain(a, b);
        ASSERT_TRUE(IsSame(result, expected, a, b)) << Plain::Print(a) << " and " << Plain::Print(b) << " give "
                                                    << Plain::Print(result) << ", not " << Plain::Print(expected);
    }
}

Operation Plainly(Plain::Binary operation)
{
    return [operation](Decimal const& a, Decimal const& b) { return Plain::Apply(operation, a, b); };
}

} // namespace

TEST(DecimalDifferential, Arithmetic)
{
    ExpectSame([](auto& a, auto& b) { return a + b; }, Plainly(decNumberAdd));
    ExpectSame([](auto& a, auto& b) { return a - b; }, Plainly(decNumberSubtract));
    ExpectSame([](auto& a, auto& b) { return a * b; }, Plainly(decNumberMultiply));
    ExpectSame([](auto& a, auto& b) { return a / b; }, Plainly(decNumberDivide));
    // Quotients that come out even, which random operands never do.
    ExpectSame([](auto& a, auto& b) { return a * b / b; }, [](auto& a, auto& b)
               { return Plain::Apply(decNumberDivide, Plain::Apply(decNumberMultiply, a, b), b); });
    ExpectSame([](auto& a, auto& b) { return a.Max(b); }, Plainly(decNumberMax));
    ExpectSame([](auto& a, auto& b) { return a.Min(b); }, Plainly(decNumberMin));
    ExpectSame([](auto& a, auto&) { return -a; }, [](auto& a, auto&) { return Plain::Apply(decNumberMinus, a); });
    ExpectSame([](auto& a, auto& b) { return a.Pow(b); }, Plainly(decNumberPower), GetDifferentialCases() / 320);
}

TEST(DecimalDifferential, Compare)
{
    // Neighbours and multiples by ten, besides what random operands give.
    RandomDecimal random(9);
    for (unsigned i = 0; i < GetDifferentialCases(); ++i)
    {
        Decimal const a = random.Next();
        Decimal const other = random.Next();
        Decimal const b = i % 3 == 0   ? other
                          : i % 3 == 1 ? a + Decimal(1, static_cast<int>(random.Below(40)) - 36)
                                       : a * Decimal(10, -1);
        ASSERT_EQ(a.CompareTo(b), Plain::Compare(a, b)) << Plain::Print(a) << " and " << Plain::Print(b);
    }
}

TEST(DecimalDifferential, Round)
{
    static constexpr std::pair<RoundMode, rounding> modes[] = { { RoundMode::AwayFromZero, DEC_ROUND_UP },
                                                                { RoundMode::HalfAwayFromZero, DEC_ROUND_HALF_UP },
                                                                { RoundMode::TowardZero, DEC_ROUND_DOWN } };
    static constexpr int ends[] = { -6145, -6144, -6112, -6111, 6176, 6177 };
    RandomDecimal random(10);
    for (unsigned i = 0; i < GetDifferentialCases(); ++i)
    {
        Decimal const a = random.Next();
        unsigned const kind = random.Below(10);
        int const digits = kind == 0   ? static_cast<int>(random.Below(13000)) - 6300
                           : kind == 1 ? ends[random.Below(6)]
                           : kind <= 3 ? 5 - Plain::Decode(a).exponent - static_cast<int>(random.Below(40))
                                       : static_cast<int>(random.Below(45)) - 10;
        auto const& [ours, mode] = modes[random.Below(3)];
        bool const keepsZeros = random.Below(2) == 0;
        Decimal expected = Plain::Encode(Plain::Rescale(Plain::Decode(a), -digits, mode), mode);
        if (!keepsZeros)
            expected = Plain::Apply(decNumberReduce, expected);
        Decimal const result = a.Round(digits, ours, keepsZeros);
        ASSERT_TRUE(IsSame(result, expected, a, a)) << Plain::Print(a) << " to " << digits << " digits gives "
                                                    << Plain::Print(result) << ", not " << Plain::Print(expected);
    }
}

TEST(DecimalDifferential, Integers)
{
    RandomDecimal random(11);
    for (unsigned i = 0; i < GetDifferentialCases(); ++i)
    {
        // Half of them around the limits of 32 and 64 bits.
        Decimal const a = i % 2 == 0 ? random.Next()
                                     : Decimal(1LL << (31 + i % 3)) * Decimal(1LL << (i % 7 == 0 ? 32 : 0)) *
                                               Decimal(random.Below(2) == 0 ? 1 : -1) +
                                           Decimal(static_cast<int>(random.Below(60)) - 30, -1);
        SCOPED_TRACE(Plain::Print(a));
        decNumber const whole = Plain::Rescale(Plain::Decode(a), 0);
        decContext context = Plain::MakeContext();
        ASSERT_EQ(static_cast<int>(a), decNumberIsSpecial(&whole) ? 0 : decNumberToInt32(&whole, &context));
        ASSERT_EQ(static_cast<unsigned>(a), decNumberIsSpecial(&whole) ? 0 : decNumberToUInt32(&whole, &context));
        std::uint64_t const magnitude = Plain::GetMagnitude(whole);
        ASSERT_EQ(static_cast<long long>(a),
                  static_cast<long long>(decNumberIsNegative(&whole) ? 0 - magnitude : magnitude));
    }
}

TEST(DecimalDifferential, FromString)
{
    RandomDecimal random(12);
    for (unsigned i = 0; i < GetDifferentialCases(); ++i)
    {
        std::string text = random.NextText();
        if (i % 2 == 0) // more digits, and a point somewhere
            text.insert(text.find_first_of("0123456789IN"), random.Below(30),
                        static_cast<char>('0' + random.Below(10)));
        if (i % 3 == 0)
            text.insert(random.Below(static_cast<unsigned>(text.size())), 1, '.');
        Decimal const result = Decimal::FromString(std::wstring(text.begin(), text.end()), L'.');
        ASSERT_TRUE(Plain::HasSameBits(result, Plain::Scan(text))) << text << " gives " << Plain::Print(result);
    }
}
