#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/PowersOfTwo.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr Encoding c_quietNaN{ 0, std::uint64_t{ 0x7C } << 56 };
constexpr Encoding c_infinity{ 0, std::uint64_t{ 0x78 } << 56 };

constexpr int c_upperBits = 52;         // of the 53 bits
constexpr int c_significantDigits = 14; // behind the first digit

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

/// 19728 / 65536 is log10 of 2.
constexpr int GetKeptDigits(int exponent) noexcept
{
    return std::max(0, c_significantDigits - ((exponent * 19728) >> 16));
}

/// From some 10^-11 to 10^15: a product of 64 and 64 bits, shifted by 1 to 63, is what is kept.
constexpr int c_leastQuickExponent = -36;
constexpr int c_greatestQuickExponent = 51;

constexpr auto c_powersOfFive = []
{
    std::array<std::uint64_t, GetKeptDigits(c_leastQuickExponent) + 1> powers{ 1 };
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 5;
    return powers;
}();

/// 0.44...4, as a fraction of 2^64. So close to it, the product's 34 digits decide.
constexpr std::uint64_t c_allFours = ~std::uint64_t{ 0 } / 9 * 4;
constexpr std::uint64_t c_closeToFours = std::uint64_t{ 1 } << 24U;

/// All digits at once, from the exact product: those dropped carry when they are more than 44...4. That the steps round
/// the product to 34 digits matters close to that number only; where it makes a whole one, so does the carry.
bool FromDoubleQuickly(double value, Encoding& result) noexcept
{
    constexpr unsigned fractionBits = 52;
    constexpr std::uint64_t leadingBit = std::uint64_t{ 1 } << fractionBits;
    auto const bits = std::bit_cast<std::uint64_t>(value);
    int const exponent = static_cast<int>(bits >> fractionBits & 0x7FFU) - 1022;
    if (exponent < c_leastQuickExponent || exponent > c_greatestQuickExponent)
        return false;
    std::uint64_t const upperBits = (leadingBit | (bits & (leadingBit - 1))) >> 1U;
    int const keptDigits = GetKeptDigits(exponent);
    Platform::UInt128 const product =
        Platform::Multiply(upperBits, c_powersOfFive[static_cast<std::size_t>(keptDigits)]);
    unsigned const shift = static_cast<unsigned>(c_upperBits - exponent - keptDigits);
    std::uint64_t const dropped = product.low << (64U - shift);
    if (dropped - (c_allFours - c_closeToFours) < 2 * c_closeToFours)
        return false;
    std::uint64_t kept = (product.high << (64U - shift) | product.low >> shift) + (dropped > c_allFours ? 1U : 0U);
    int const zeros = StripZeros(kept);
    result = PackSmall((bits & c_signBit) != 0, zeros - keptDigits, kept);
    return true;
}

} // namespace

Encoding FromDouble(double value)
{
    if (Encoding result{}; FromDoubleQuickly(value, result))
        return result;
    if (std::isnan(value))
        return c_quietNaN;
    if (std::isinf(value))
        return value < 0 ? Negate(c_infinity) : c_infinity;
    int exponent = 0;
    // Cut to a whole number: 52 of the 53 bits.
    auto const bits = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent), c_upperBits));
    if (bits == 0)
        return ToEncoding(Decimal::Zero());

    Finite result = MultiplyByLimb(GetPowerOfTwo(exponent - c_upperBits), bits);
    result.isNegative = value < 0;
    int const drop = -(result.exponent + GetKeptDigits(exponent));
    if (drop >= 1)
        result = DropCascading(result, drop);
    result.exponent += StripZeros(result.coefficient, c_greatestPlainExponent - result.exponent);
    return Pack(result);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
