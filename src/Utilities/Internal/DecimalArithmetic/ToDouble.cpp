#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/BinaryPowers.h>
#include <Utilities/Internal/DecimalArithmetic/PowersOfTwo.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr int c_leastExactExponent = -17;

/// How many bits make a whole number of 53 to 56 of a number below 10^places.
int GetShift(int places) noexcept
{
    constexpr double digitsOfWhole = 16.65355977452702; // 1 + 52 * log10 of 2
    constexpr double bitsOfDigit = 3.321928094887362;   // log2 of 10
    return static_cast<int>((digitsOfWhole - places) * bitsOfDigit);
}

/// For -1022 to 1023: as a factor it is exact, as ldexp is.
double GetExactPowerOfTwo(int exponent) noexcept
{
    return std::bit_cast<double>(static_cast<std::uint64_t>(1023 + exponent) << 52U);
}

/// coefficient * 2^shift / divisor, half away from zero. The quotient has at most 57 bits.
std::uint64_t Scale(std::uint64_t coefficient, int shift, std::uint64_t divisor) noexcept
{
    Platform::UInt128 dividend{ coefficient, 0 };
    if (shift >= 64)
        dividend = { 0, coefficient << (shift - 64) };
    else if (shift > 0)
        dividend = Platform::ShiftLeft(dividend, static_cast<unsigned>(shift));
    else
        divisor <<= -shift;
    Division const division = Platform::Divide(dividend, divisor);
    return division.quotient + (division.remainder >= divisor - division.remainder ? 1U : 0U);
}

/// Up to eighteen digits, of which at most seventeen behind the point: then nothing is rounded but the whole number.
double ToDoubleSmall(bool isNegative, int exponent, std::uint64_t coefficient) noexcept
{
    int const shift = GetShift(std::max(1, CountDigits(coefficient)) + exponent);
    auto const whole = static_cast<std::int64_t>(Scale(coefficient, shift, GetPowerOfTen(-exponent)));
    return static_cast<double>(isNegative ? -whole : whole) * GetExactPowerOfTwo(-shift);
}

/// So close to one half, as a fraction of 2^64, the product's 34 digits decide.
constexpr std::uint64_t c_closeToHalf = std::uint64_t{ 1 } << 24U;

/// With the highest bit at the top; not for zero. Answers by how many bits it moved.
unsigned Normalise(Platform::UInt128& value) noexcept
{
    unsigned const words = value.high == 0 ? 64 : 0;
    if (words != 0)
        value = { 0, value.low };
    auto const bits = static_cast<unsigned>(std::countl_zero(value.high));
    value = { value.low << bits, value.high << bits | (value.low >> 1U) >> (63U - bits) };
    return words + bits;
}

/// The same number from a product in binary, 128 bits of it; false where these do not tell it.
bool ToDoubleQuickly(Finite const& value, double& result) noexcept
{
    if (value.exponent < c_leastBinaryPower || value.exponent > c_greatestBinaryPower || value.coefficient.IsZero())
        return false;
    BinaryPower const& power = c_binaryPowers[static_cast<std::size_t>(value.exponent - c_leastBinaryPower)];
    int const shift = GetShift(CountDigits(value.coefficient) + value.exponent);
    Platform::UInt128 coefficient = Add(Platform::Multiply(value.coefficient.high, c_limbBase), value.coefficient.low);
    int const normalising = static_cast<int>(Normalise(coefficient));
    Platform::UInt128 product = Platform::Multiply(coefficient.high, power.mantissa.high);
    product = Add(product, Platform::Multiply(coefficient.high, power.mantissa.low).high);
    product = Add(product, Platform::Multiply(coefficient.low, power.mantissa.high).high);

    // What lies below the whole number: it has 52 to 57 of the upper word's bits.
    auto const below = static_cast<unsigned>(normalising - power.exponent - shift - 3 * 64);
    std::uint64_t const fraction = product.high << (64U - below) | product.low >> below;
    if (fraction - (c_signBit - c_closeToHalf) < 2 * c_closeToHalf)
        return false;
    auto const whole = static_cast<std::int64_t>((product.high >> below) + (fraction >> 63U));
    result = static_cast<double>(value.isNegative ? -whole : whole) * GetExactPowerOfTwo(-shift);
    return true;
}

double ToDoubleLarge(Encoding a)
{
    if (IsInfinite(a))
        return std::numeric_limits<double>::infinity();
    if (IsNaN(a))
        return std::bit_cast<double>(IsSignallingNaN(a) ? 0x7FF0'0000'0000'0001 : 0x7FF8'0000'0000'0000);

    Finite const value = Unpack(a);
    if (double result = 0; ToDoubleQuickly(value, result))
        return result;
    int const shift = GetShift(std::max(1, CountDigits(value.coefficient)) + value.exponent);
    Whole const whole = ToWhole(MultiplyFinite(value, GetPowerOfTwo(shift)));
    auto const bits = static_cast<std::int64_t>(whole.magnitude);
    return std::ldexp(static_cast<double>(whole.isNegative ? -bits : bits), -shift);
}

} // namespace

double ToDouble(Encoding a)
{
    if (IsSmall<c_limbBits>(a))
        if (int const exponent = GetSmallExponent(a); exponent <= 0 && exponent >= c_leastExactExponent)
            return ToDoubleSmall(IsNegative(a), exponent, UnpackLimb(a.low));
    return ToDoubleLarge(a);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
