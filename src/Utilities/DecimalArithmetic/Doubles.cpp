#include <Platform/LazyPages.h>
#include <Utilities/DecimalArithmetic/Arithmetic.h>

#include <algorithm>
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

// Exponents from -0x8000 up as the index; the numbers asked for are some -20400 to 20600.
constexpr int c_powersOffset = 0x8000;

void FillPowersOfTwo(char16_t first, Platform::LazyPages<Finite>::Page& page)
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

constinit Platform::LazyPages<Finite> s_powersOfTwo(FillPowersOfTwo);

/// To 34 digits, as decNumber raises it.
Finite GetPowerOfTwo(int exponent)
{
    return s_powersOfTwo.Get(static_cast<char16_t>(exponent + c_powersOffset));
}

/// The number 44...4 of `count` digits.
Coefficient GetFours(int count) noexcept
{
    constexpr std::uint64_t fours = 444'444'444'444'444'444;
    int const high = std::max(0, count - c_limbDigits);
    int const low = std::min(count, c_limbDigits);
    return { fours % GetPowerOfTen(high), fours % GetPowerOfTen(low) };
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

    Finite result = MultiplyFinite({ value < 0, 0, { 0, bits } }, GetPowerOfTwo(exponent - c_fractionBits));
    int const keptDigits = std::max(0, c_significantDigits - ((exponent * 19728) >> 16)); // 19728 / 65536 is log10 of 2
    int const drop = -(result.exponent + keptDigits);
    if (drop >= 1)
        result = DropCascading(result, drop);
    result.exponent += StripZeros(result.coefficient, c_greatestPlainExponent - result.exponent);
    return Pack(result);
}

double ToDouble(Encoding a)
{
    if (IsInfinite(a))
        return std::numeric_limits<double>::infinity();
    if (IsNaN(a))
        return std::bit_cast<double>(IsSignallingNaN(a) ? 0x7FF0'0000'0000'0001 : 0x7FF8'0000'0000'0000);

    constexpr double digitsOfWhole = 16.65355977452702; // 1 + 52 * log10 of 2
    constexpr double bitsOfDigit = 3.321928094887362;   // log2 of 10
    Finite const value = Unpack(a);
    int const places = std::max(1, CountDigits(value.coefficient)) + value.exponent;
    int const shift = static_cast<int>((digitsOfWhole - places) * bitsOfDigit);
    Finite const scaled = MultiplyFinite(value, GetPowerOfTwo(shift));
    Whole const whole = ToWhole(scaled);
    auto const bits = static_cast<std::int64_t>(whole.magnitude);
    return std::ldexp(static_cast<double>(whole.isNegative ? -bits : bits), -shift);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
