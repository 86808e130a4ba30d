#include <Platform/LazyPages.h>
#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr Encoding c_quietNaN{ 0, std::uint64_t{ 0x7C } << 56 };
constexpr Encoding c_infinity{ 0, std::uint64_t{ 0x78 } << 56 };

constexpr int c_fractionBits = 52;
constexpr int c_significantDigits = 14; // behind the first digit

// The exponent less the lowest one as the index; the numbers asked for are some -20400 to 20600.
constexpr int c_powersOffset = 0x5200;
using PowerTable = Platform::LazyPages<Finite, 2 * c_powersOffset / 256>;

void FillPowersOfTwo(char16_t first, PowerTable::Page& page)
{
    Encoding const two = Pack({ false, 0, { 0, 2 } });
    int exponent = static_cast<int>(first) - c_powersOffset;
    for (Finite& power : page)
    {
        Encoding const magnitude = Pack({ exponent < 0, 0, { 0, static_cast<std::uint64_t>(std::abs(exponent)) } });
        Encoding const raised = Reference::Power(two, magnitude);
        // Only numbers below 10^-6100 ask for a power that is an Infinity: as a factor of 0 it makes them the 0 they
        // are.
        power = IsFinite(raised) ? Unpack(raised) : Finite{};
        ++exponent;
    }
}

constinit PowerTable::Storage s_powersOfTwoPages;
constinit PowerTable s_powersOfTwo(FillPowersOfTwo, s_powersOfTwoPages);

/// To 34 digits, as decNumber raises it.
Finite GetPowerOfTwo(int exponent)
{
    return s_powersOfTwo.Get(static_cast<char16_t>(exponent + c_powersOffset));
}

/// The number 44...4 of 0 to 18 digits.
constexpr auto c_fours = []
{
    std::array<std::uint64_t, c_limbDigits + 1> fours{};
    for (std::size_t i = 1; i < fours.size(); ++i)
        fours[i] = fours[i - 1] * 10 + 4;
    return fours;
}();

/// The same of up to 36 digits.
Coefficient GetFours(int count) noexcept
{
    return { c_fours[static_cast<std::size_t>(std::clamp(count - c_limbDigits, 0, c_limbDigits))],
             c_fours[static_cast<std::size_t>(std::min(count, c_limbDigits))] };
}

/// Drops digits one by one from the last, each rounding the next: 4 and 5 round up, since the 5 makes the 4 a 5. That
/// carries all the way exactly when the digits are more than 44...4.
Finite DropCascading(Finite value, int count) noexcept
{
    Shifted const shifted = ShiftRight(value.coefficient, count);
    bool const carries = shifted.dropped > GetFours(count);
    return { value.isNegative, value.exponent + count, Add(shifted.value, { 0, carries ? 1U : 0U }) };
}

} // namespace

Encoding FromDouble(double value)
{
    if (std::isnan(value))
        return c_quietNaN;
    if (std::isinf(value))
        return value < 0 ? Negate(c_infinity) : c_infinity;
    int exponent = 0;
    // Cut to a whole number: 52 of the 53 bits.
    auto const bits = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent), c_fractionBits));
    if (bits == 0)
        return ToEncoding(Decimal::Zero());

    Finite result = MultiplyByLimb(GetPowerOfTwo(exponent - c_fractionBits), bits);
    result.isNegative = value < 0;
    int const keptDigits = std::max(0, c_significantDigits - ((exponent * 19728) >> 16)); // 19728 / 65536 is log10 of 2
    int const drop = -(result.exponent + keptDigits);
    if (drop >= 1)
        result = DropCascading(result, drop);
    result.exponent += StripZeros(result.coefficient, c_greatestPlainExponent - result.exponent);
    return Pack(result);
}

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
    // The power of two is exact, and so is the product.
    auto const power = std::bit_cast<double>(static_cast<std::uint64_t>(1023 - shift) << c_fractionBits);
    return static_cast<double>(isNegative ? -whole : whole) * power;
}

double ToDoubleLarge(Encoding a)
{
    if (IsInfinite(a))
        return std::numeric_limits<double>::infinity();
    if (IsNaN(a))
        return std::bit_cast<double>(IsSignallingNaN(a) ? 0x7FF0'0000'0000'0001 : 0x7FF8'0000'0000'0000);

    Finite const value = Unpack(a);
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
