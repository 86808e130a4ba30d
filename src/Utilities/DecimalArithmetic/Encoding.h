#pragma once

#include <Utilities/Decimal.h>
#include <Utilities/DecimalArithmetic/Coefficient.h>

#include <bit>
#include <cstdint>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// A decimal128 of IEEE 754-2008 with densely packed digits, as two words.
///
/// From the highest bit: the sign; five bits that hold the exponent's two highest bits and the first digit, or name an
/// Infinity or NaN; the exponent's other twelve bits; eleven declets. The exponent is stored with c_bias added.
struct Encoding
{
    std::uint64_t low;
    std::uint64_t high;
};

constexpr int c_bias = 6176;
constexpr std::uint64_t c_signBit = std::uint64_t{ 1 } << 63;
constexpr unsigned c_exponentShift = 46;
constexpr std::uint64_t c_upperDeclets = (std::uint64_t{ 1 } << c_exponentShift) - 1;

/// Where a finite result neither overflows nor is subnormal nor needs its exponent folded down.
constexpr int c_leastPlainExponent = -6143;
constexpr int c_greatestPlainExponent = 6111;

inline Encoding ToEncoding(Decimal const& value) noexcept
{
    return std::bit_cast<Encoding>(value);
}

inline Decimal ToDecimal(Encoding encoding) noexcept
{
    return std::bit_cast<Decimal>(encoding);
}

constexpr bool IsNegative(Encoding encoding) noexcept
{
    return (encoding.high & c_signBit) != 0;
}

constexpr bool IsFinite(Encoding encoding) noexcept
{
    return (~encoding.high & std::uint64_t{ 0x78 } << 56U) != 0;
}

constexpr bool IsInfinite(Encoding encoding) noexcept
{
    return (encoding.high & std::uint64_t{ 0x7C } << 56U) == std::uint64_t{ 0x78 } << 56U;
}

constexpr bool IsNaN(Encoding encoding) noexcept
{
    return (~encoding.high & std::uint64_t{ 0x7C } << 56U) == 0;
}

constexpr bool IsSignallingNaN(Encoding encoding) noexcept
{
    return (~encoding.high & std::uint64_t{ 0x7E } << 56U) == 0;
}

constexpr Encoding Negate(Encoding encoding) noexcept
{
    return { encoding.low, encoding.high ^ c_signBit };
}

/// What becomes of the last digit that is kept: one more for any digit dropped, for one half or more, or never.
enum class Rounding
{
    Up,
    HalfUp,
    Down
};

/// A finite number taken apart.
struct Finite
{
    bool isNegative;
    int exponent;
    Coefficient coefficient; // up to 34 digits, or up to 36 on the way to a result
};

/// The digits of the eleven declets alone, which is also the payload of a NaN.
Coefficient UnpackDeclets(Encoding encoding) noexcept;

Finite Unpack(Encoding encoding) noexcept;

/// The exponent from c_leastPlainExponent - 33 to c_greatestPlainExponent, the coefficient of up to 34 digits.
Encoding Pack(Finite const& value) noexcept;

constexpr bool IsPlainExponent(int exponent) noexcept
{
    return exponent >= c_leastPlainExponent && exponent <= c_greatestPlainExponent;
}

/// Up to eighteen digits as six declets.
std::uint64_t PackLimb(std::uint64_t value) noexcept;

/// Six declets as up to eighteen digits.
std::uint64_t UnpackLimb(std::uint64_t declets) noexcept;

/// What most amounts are: an exponent from -2080 to 2015 and no digit above the lower word's 60 bits. Two such numbers
/// are recognised by one comparison, and no result of theirs leaves the plain exponents.
constexpr std::uint64_t c_smallPattern = std::uint64_t{ 1 } << 61;
constexpr std::uint64_t c_smallMask = std::uint64_t{ 0x7C } << 56 | c_upperDeclets;

template <unsigned Bits>
constexpr bool AreSmall(Encoding a, Encoding b) noexcept
{
    return ((((a.high ^ c_smallPattern) | (b.high ^ c_smallPattern)) & c_smallMask) | (a.low | b.low) >> Bits) == 0;
}

constexpr unsigned c_limbBits = 60;   // six declets, eighteen digits
constexpr unsigned c_packedBits = 50; // five declets, fifteen digits

template <unsigned Bits>
constexpr bool IsSmall(Encoding a) noexcept
{
    return AreSmall<Bits>(a, a);
}

constexpr std::uint64_t c_exponentField = std::uint64_t{ 0xFFF } << c_exponentShift;

/// Of a small number.
constexpr int GetSmallExponent(Encoding encoding) noexcept
{
    return static_cast<int>(encoding.high >> c_exponentShift & 0xFFFU) + 0x1000 - c_bias;
}

constexpr bool IsSmallExponent(int exponent) noexcept
{
    return exponent >= 0x1000 - c_bias && exponent <= 0x1FFF - c_bias;
}

/// Of a number below 10^18 with a small exponent.
inline Encoding PackSmall(bool isNegative, int exponent, std::uint64_t coefficient) noexcept
{
    std::uint64_t const biased = static_cast<std::uint64_t>(exponent + c_bias - 0x1000);
    return { PackLimb(coefficient),
             c_smallPattern | biased << c_exponentShift | (isNegative ? c_signBit : std::uint64_t{ 0 }) };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
