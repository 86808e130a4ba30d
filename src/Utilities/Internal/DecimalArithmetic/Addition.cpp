#include <Utilities/Internal/DecimalArithmetic/Addition.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/Reference.h>

#include <algorithm>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

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

} // namespace

Encoding AddLarge(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Add(a, b);
    Finite left = Unpack(a);
    Finite right = Unpack(b);
    if (left.exponent > right.exponent)
        Align(left, right);
    else if (left.exponent < right.exponent)
        Align(right, left);
    Finite sum = AddAligned(left, right);
    if (sum.coefficient.high >= c_upperLimit)
        Round(sum);
    return IsPlainExponent(sum.exponent) ? Pack(sum) : Reference::Add(a, b);
}

Encoding SubtractLarge(Encoding a, Encoding b) noexcept
{
    return IsFinite(b) ? AddLarge(a, Negate(b)) : Reference::Subtract(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
