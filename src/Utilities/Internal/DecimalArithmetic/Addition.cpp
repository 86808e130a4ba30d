#include <Utilities/Internal/DecimalArithmetic/Addition.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/Reference.h>

#include <algorithm>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// A word of digits and perhaps a sixteenth one, which as a declet is itself.
std::uint64_t PackSum(std::uint64_t digits) noexcept
{
    return PackDigits(digits) | (digits >> c_wordBits) << c_packedBits;
}

/// Without `count` digits behind more than 35 of the greater number. What is cut off counts for nothing in a sum; in a
/// difference it takes one more, and what that leaves over is cut off in its turn.
VEK_NOINLINE Coefficient Cut(Coefficient lower, int count, bool isDifference) noexcept
{
    Shifted const shifted = ShiftRight(lower, count);
    return isDifference && !shifted.dropped.IsZero() ? Add(shifted.value, { 0, 1 }) : shifted.value;
}

/// The number with the greater exponent is moved left as far as there is room, the other one right for the rest.
VEK_INLINE void Align(Finite& upper, Finite& lower) noexcept
{
    int const difference = upper.exponent - lower.exponent;
    int const left = std::min(difference, 2 * c_limbDigits - CountDigits(upper.coefficient));
    if (left < difference && !upper.coefficient.IsZero())
    {
        lower.coefficient = Cut(lower.coefficient, difference - left, upper.isNegative != lower.isNegative);
        lower.exponent = upper.exponent - left;
    }
    upper.coefficient = ShiftLeft(upper.coefficient, left);
    upper.exponent = lower.exponent;
}

/// Of numbers with the same exponent.
VEK_INLINE Finite AddAligned(Finite const& a, Finite const& b) noexcept
{
    if (a.isNegative == b.isNegative)
        return { a.isNegative, a.exponent, Add(a.coefficient, b.coefficient) };
    if (a.coefficient == b.coefficient)
        return { false, a.exponent, {} };
    return a.coefficient < b.coefficient ? Finite{ b.isNegative, a.exponent, Subtract(b.coefficient, a.coefficient) }
                                         : Finite{ a.isNegative, a.exponent, Subtract(a.coefficient, b.coefficient) };
}

/// Without its last digit, half-up; the number has 35 digits and begins with 1.
VEK_INLINE void DropLastDigit(Finite& sum) noexcept
{
    std::uint64_t const high = sum.coefficient.high / 10;
    std::uint64_t const low = (sum.coefficient.high % 10 * c_limbBase + sum.coefficient.low + 5) / 10;
    bool const carries = low == c_limbBase;
    sum.coefficient = { high + (carries ? 1U : 0U), carries ? 0 : low };
    ++sum.exponent;
}

/// The exponent of the first is the greater one. When it has all 34 digits, so has the result, but for few: then the
/// other one is rounded where these end. False for any other.
VEK_INLINE bool AddShifted(Finite const& upper, Finite const& lower, Finite& sum) noexcept
{
    int const count = upper.exponent - lower.exponent;
    if (count >= c_limbDigits || upper.coefficient.high < c_upperLimit / 10)
        return false;
    bool const isDifference = upper.isNegative != lower.isNegative;
    Division const high = DivideByPowerOfTen(lower.coefficient.high, count);
    Division const low = DivideByPowerOfTen(lower.coefficient.low, count);
    // What is one half rounds away from zero: a sum up, and what is taken off a difference down.
    std::uint64_t const rounding = 2 * low.remainder + (isDifference ? 0 : 1) > GetPowerOfTen(count) ? 1 : 0;
    Coefficient const shifted{ high.quotient,
                               high.remainder * GetPowerOfTen(c_limbDigits - count) + low.quotient + rounding };
    sum = { upper.isNegative, upper.exponent,
            isDifference ? Subtract(upper.coefficient, shifted) : Add(upper.coefficient, shifted) };
    return sum.coefficient.high > c_upperLimit / 10 && sum.coefficient.high < c_upperLimit;
}

/// Half-up, from more than 34 digits.
VEK_INLINE void Round(Finite& sum) noexcept
{
    int const surplus = CountDigits(sum.coefficient.high) - (c_precision - c_limbDigits);
    sum.exponent += surplus;
    sum.coefficient = ShiftRightHalfUp(sum.coefficient, surplus);
    if (sum.coefficient.high >= c_upperLimit) [[unlikely]] // 10^34
    {
        sum.coefficient = { c_upperLimit / 10, 0 };
        ++sum.exponent;
    }
}

/// Any two.
VEK_NOINLINE Encoding AddOther(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Add(a, b);
    Finite left = Unpack(a);
    Finite right = Unpack(b);
    if (left.exponent > right.exponent)
        Align(left, right);
    else
        Align(right, left);
    Finite sum = AddAligned(left, right);
    if (sum.coefficient.high >= c_upperLimit)
        Round(sum);
    return IsPlainExponent(sum.exponent) ? Pack(sum) : Reference::Add(a, b);
}

Encoding AddLarge(Encoding a, Encoding b) noexcept
{
    Finite const left = Unpack(a);
    Finite const right = Unpack(b);
    Finite sum;
    if (left.exponent == right.exponent)
    {
        sum = AddAligned(left, right);
        if (sum.coefficient.high >= c_upperLimit)
            DropLastDigit(sum);
    }
    else if (!(left.exponent > right.exponent ? AddShifted(left, right, sum) : AddShifted(right, left, sum)))
        return AddOther(a, b);
    return IsPlainExponent(sum.exponent) ? Pack(sum) : AddOther(a, b);
}

/// Both of up to fifteen digits: by these, one number's moved left as far as the exponents differ.
VEK_NOINLINE Encoding AddSmall(Encoding a, Encoding b) noexcept
{
    std::uint64_t left = UnpackDigits(a.low);
    std::uint64_t right = UnpackDigits(b.low);
    int const difference = GetSmallExponent(a) - GetSmallExponent(b);
    if (!(difference > 0 ? ShiftWordLeft(left, difference) : ShiftWordLeft(right, -difference)))
        return AddLarge(a, b);
    std::uint64_t const high = (difference > 0 ? b.high : a.high) & ~c_signBit;
    if (IsNegative(a) == IsNegative(b))
        return { PackSum(AddDigits(left, right)), high | (a.high & c_signBit) };
    if (left == right)
        return { 0, high };
    return left > right ? Encoding{ PackDigits(SubtractDigits(left, right).digits), high | (a.high & c_signBit) }
                        : Encoding{ PackDigits(SubtractDigits(right, left).digits), high | (b.high & c_signBit) };
}

} // namespace

Encoding AddUnlike(Encoding a, Encoding b) noexcept
{
    return AreSmall<c_packedBits>(a, b) ? AddSmall(a, b) : AddLarge(a, b);
}

Encoding SubtractUnlike(Encoding a, Encoding b) noexcept
{
    return IsFinite(b) ? AddUnlike(a, Negate(b)) : Reference::Subtract(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
