#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>

#include <Platform/Attributes.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

using Platform::UInt128;

constexpr int c_limbs = 2 * c_limbDigits;
constexpr int c_upperDigits = c_precision - 1 - c_limbDigits; // of the upper limb, behind the first digit

/// An exact quotient has as few zeros at its end as get it to the difference of the exponents.
Encoding FinishExact(Finite quotient, int idealExponent) noexcept
{
    quotient.exponent += StripZeros(quotient.coefficient, idealExponent - quotient.exponent);
    return Finish(quotient);
}

/// Both of up to eighteen digits, neither zero. The first digit comes out of a plain division, and each limb's other
/// digits, fifteen and eighteen, out of one of 128 by 64 bits.
Encoding DivideLimbs(bool isNegative, int exponent, std::uint64_t dividend, std::uint64_t divisor) noexcept
{
    int const shift = CountDigits(dividend) - CountDigits(divisor);
    if (shift < 0)
        dividend *= GetPowerOfTen(-shift);
    else
        divisor *= GetPowerOfTen(shift);
    bool const isLess = dividend < divisor;
    if (isLess)
        dividend *= 10;

    std::uint64_t const first = dividend / divisor;
    Division const upper =
        Platform::Divide(Platform::Multiply(dividend - first * divisor, GetPowerOfTen(c_upperDigits)), divisor);
    Division const lower = Platform::Divide(Platform::Multiply(upper.remainder, c_limbBase), divisor);
    Finite quotient{ isNegative,
                     exponent + shift - (isLess ? c_precision : c_precision - 1),
                     { first * GetPowerOfTen(c_upperDigits) + upper.quotient, lower.quotient } };
    if (lower.remainder == 0)
        return FinishExact(quotient, exponent);
    if (lower.remainder >= divisor - lower.remainder)
        quotient.coefficient = Add(quotient.coefficient, { 0, 1 });
    return Finish(quotient);
}

Coefficient MultiplyByDigit(Coefficient const& value, std::uint64_t digit) noexcept
{
    std::uint64_t const low = value.low * digit;
    return { value.high * digit + low / c_limbBase, low % c_limbBase };
}

struct LimbDivision
{
    std::uint64_t quotient;
    Coefficient remainder;
};

/// dividend * 10^18 / divisor, the dividend below the divisor and the divisor's upper limb at least half of 10^18: then
/// the estimate from the upper limb is at most a few too large (Knuth, The Art of Computer Programming, 4.3.1 D).
LimbDivision DivideLimb(Coefficient const& dividend, Coefficient const& divisor) noexcept
{
    Division estimate =
        Platform::Divide(Platform::Add(Platform::Multiply(dividend.high, c_limbBase), dividend.low), divisor.high);
    UInt128 taken = Platform::Multiply(estimate.quotient, divisor.low);
    UInt128 left = Platform::Multiply(estimate.remainder, c_limbBase);
    UInt128 const step = Platform::Multiply(divisor.high, c_limbBase);
    while (IsLess(left, taken))
    {
        --estimate.quotient;
        left = Platform::Add(left, step);
        taken = Platform::Subtract(taken, { divisor.low, 0 });
    }
    Division const remainder = Platform::Divide(Platform::Subtract(left, taken), c_limbBase);
    return { estimate.quotient, { remainder.quotient, remainder.remainder } };
}

/// Neither zero. Gives 36 digits, more than are kept.
Encoding DivideFinite(Finite const& a, Finite const& b) noexcept
{
    int const digitsOfA = CountDigits(a.coefficient);
    int const digitsOfB = CountDigits(b.coefficient);
    int const idealExponent = a.exponent - b.exponent;
    Coefficient divisor = ShiftLeft(b.coefficient, c_limbs - digitsOfB);
    Coefficient dividend = ShiftLeft(a.coefficient, c_limbs - digitsOfA);
    bool const isLess = dividend < divisor;
    if (!isLess)
        dividend = ShiftLeft(a.coefficient, c_limbs - 1 - digitsOfA);
    std::uint64_t const scale = c_limbBase / (divisor.high + 1);
    dividend = MultiplyByDigit(dividend, scale);
    divisor = MultiplyByDigit(divisor, scale);

    LimbDivision const upper = DivideLimb(dividend, divisor);
    LimbDivision const lower = DivideLimb(upper.remainder, divisor);
    Finite const quotient{ a.isNegative != b.isNegative,
                           idealExponent + digitsOfA - digitsOfB - (isLess ? c_limbs : c_limbs - 1),
                           { upper.quotient, lower.quotient } };
    return lower.remainder.IsZero() ? FinishExact(quotient, idealExponent) : Finish(quotient);
}

VEK_NOINLINE Encoding DivideLarge(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Divide(a, b);
    Finite const dividend = Unpack(a);
    Finite const divisor = Unpack(b);
    if (divisor.coefficient.IsZero())
        return Reference::Divide(a, b);
    if (dividend.coefficient.IsZero())
        return Finish({ dividend.isNegative != divisor.isNegative, dividend.exponent - divisor.exponent, { 0, 0 } });
    return DivideFinite(dividend, divisor);
}

} // namespace

Encoding Divide(Encoding a, Encoding b) noexcept
{
    if (!AreSmall<c_limbBits>(a, b) || a.low == 0 || b.low == 0)
        return DivideLarge(a, b);
    return DivideLimbs(IsNegative(a) != IsNegative(b), GetSmallExponent(a) - GetSmallExponent(b), UnpackLimb(a.low),
                       UnpackLimb(b.low));
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
