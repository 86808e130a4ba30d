#pragma once

#include <Platform/WordPair.h>
#include <Utilities/Decimal.h>
#include <Utilities/Internal/DecimalArithmetic/Coefficient.h>

#include <array>
#include <bit>
#include <cstddef>
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
constexpr unsigned c_limbBits = 60; // six declets, eighteen digits
constexpr std::uint64_t c_limbMask = (std::uint64_t{ 1 } << c_limbBits) - 1;
constexpr std::uint64_t c_billion = 1'000'000'000;
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
    return Platform::JoinWords<Decimal>(encoding.low, encoding.high);
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

/// Three declets as nine digits.
inline std::uint64_t UnpackNine(std::uint64_t declets) noexcept
{
    return c_valuesOfDeclets[2][GetDeclet(declets, 2)] + c_valuesOfDeclets[1][GetDeclet(declets, 1)] +
           c_valuesOfDeclets[0][GetDeclet(declets, 0)];
}

/// Six declets as up to eighteen digits.
inline std::uint64_t UnpackLimb(std::uint64_t declets) noexcept
{
    return UnpackNine(declets >> 30U) * c_billion + UnpackNine(declets);
}

/// The next three digits of a fraction in 64 bits, as a declet at its place among three.
inline std::uint32_t TakeDeclet(std::uint64_t& fraction, std::size_t place) noexcept
{
    Platform::UInt128 const product = Platform::Multiply(fraction, 1000);
    fraction = product.low;
    return c_declets[place][static_cast<std::size_t>(product.high)];
}

/// Up to eighteen digits: the first three of them, and the others as a fraction.
struct FirstAndRest
{
    std::size_t first;
    std::uint64_t fraction; // of 2^64
};

inline FirstAndRest SplitFirst(std::uint64_t value) noexcept
{
    // Divided by 10^15: the factor is 2^113 / 10^15, rounded up, and only the product's high word counts. So the
    // fraction is wrong by less than 2^-53 either way; with that added it is too great by less than a quarter of its
    // last digit.
    constexpr unsigned fractionBits = 53;
    constexpr std::uint64_t factor = 0x901D7CF73AB0ACDA;
    std::uint64_t const quotient = Platform::Multiply(value << 4U, factor).high;
    return { static_cast<std::size_t>(quotient >> fractionBits), (quotient + 1) << (64U - fractionBits) };
}

/// Six declets: the upper one as it stands in its group of three, and the fifteen digits of a fraction.
inline std::uint64_t PackFraction(std::uint32_t first, std::uint64_t fraction) noexcept
{
    std::uint32_t upper = first | TakeDeclet(fraction, 1);
    upper |= TakeDeclet(fraction, 0);
    std::uint32_t lower = TakeDeclet(fraction, 2);
    lower |= TakeDeclet(fraction, 1);
    lower |= TakeDeclet(fraction, 0);
    return std::uint64_t{ upper } << 30U | lower;
}

/// Up to eighteen digits as six declets.
inline std::uint64_t PackLimb(std::uint64_t value) noexcept
{
    FirstAndRest const split = SplitFirst(value);
    return PackFraction(c_declets[2][split.first], split.fraction);
}

/// What the five bits below the sign stand for.
struct Head
{
    std::uint16_t firstDigit;
    std::int16_t exponent; // of its highest bits, without c_bias; above every exponent for an Infinity and a NaN
};

constexpr auto c_heads = []
{
    std::array<Head, 32> heads{};
    for (unsigned bits = 0; bits < heads.size(); ++bits)
    {
        // The digits 8 and 9 have one bit, and the exponent's stand further down.
        bool const isLarge = bits >= 24;
        unsigned const exponent = (isLarge ? bits >> 1U : bits >> 3U) & 3U;
        heads[bits] = { static_cast<std::uint16_t>(isLarge ? 8 + bits % 2 : bits % 8),
                        static_cast<std::int16_t>(exponent == 3 ? 0x7000
                                                                : static_cast<int>(exponent << 12U) - c_bias) };
    }
    return heads;
}();

/// Their first digits at their place in the upper limb.
constexpr auto c_upperDigits = []
{
    std::array<std::uint64_t, c_heads.size()> digits{};
    for (std::size_t bits = 0; bits < digits.size(); ++bits)
        digits[bits] = c_heads[bits].firstDigit * GetPowerOfTen(c_precision - 1 - c_limbDigits);
    return digits;
}();

constexpr std::size_t GetHeadBits(Encoding encoding) noexcept
{
    return static_cast<std::size_t>(encoding.high >> 58U & 31U);
}

constexpr Head const& GetHead(Encoding encoding) noexcept
{
    return c_heads[GetHeadBits(encoding)];
}

/// Of a finite number.
constexpr unsigned GetFirstDigit(Encoding encoding) noexcept
{
    return GetHead(encoding).firstDigit;
}

/// Of a finite number; far above c_greatestPlainExponent for another.
constexpr int GetExponent(Encoding encoding) noexcept
{
    return GetHead(encoding).exponent + static_cast<int>(encoding.high >> c_exponentShift & 0xFFFU);
}

/// The five upper declets, which lie across both words.
constexpr std::uint64_t GetUpperDeclets(Encoding encoding) noexcept
{
    return (encoding.high & c_upperDeclets) << 4U | encoding.low >> c_limbBits;
}

/// Of up to eighteen digits in six declets; 0 for zero.
inline int CountPackedDigits(std::uint64_t declets) noexcept
{
    unsigned const below = (static_cast<unsigned>(std::bit_width(declets | 1U)) - 1) / 10;
    return static_cast<int>(3 * below) + c_lengthsOfDeclets[GetDeclet(declets, below)];
}

/// Of a finite number, whatever its exponent.
constexpr bool IsZero(Encoding encoding) noexcept
{
    return (encoding.low | (encoding.high & c_upperDeclets)) == 0 && GetFirstDigit(encoding) == 0;
}

/// The digits of a finite number, 0 for zero, without decoding more than one declet.
inline int CountDigits(Encoding encoding) noexcept
{
    if (GetFirstDigit(encoding) != 0)
        return c_precision;
    std::uint64_t const upper = GetUpperDeclets(encoding);
    return upper != 0 ? c_limbDigits + CountPackedDigits(upper) : CountPackedDigits(encoding.low & c_limbMask);
}

inline Finite Unpack(Encoding encoding) noexcept
{
    std::uint64_t const declets = GetUpperDeclets(encoding);
    std::uint64_t const upper =
        c_valuesOfDeclets[1][GetDeclet(declets, 4)] + c_valuesOfDeclets[0][GetDeclet(declets, 3)];
    std::uint64_t const high = c_upperDigits[GetHeadBits(encoding)] + upper * c_billion + UnpackNine(declets);
    return { IsNegative(encoding), GetExponent(encoding), { high, UnpackLimb(encoding.low) } };
}

/// c_heads the other way: for each of the exponent's three highest values sixteen digits, the last six of them none.
/// The exponent, put in its place as a whole, is taken off where these do not belong.
constexpr auto c_headBits = []
{
    std::array<std::uint64_t, 48> heads{};
    for (unsigned i = 0; i < heads.size(); ++i)
    {
        unsigned const exponent = i >> 4U;
        unsigned const digit = i & 15U;
        unsigned const bits = digit < 8 ? exponent << 3U | digit : 24U | exponent << 1U | (digit & 1U);
        heads[i] = (std::uint64_t{ bits } - exponent) << 58U;
    }
    return heads;
}();

/// All but the declets.
constexpr std::uint64_t PackHead(bool isNegative, int exponent, std::uint64_t firstDigit) noexcept
{
    auto const biased = static_cast<std::uint64_t>(exponent + c_bias);
    std::uint64_t const head = c_headBits[static_cast<std::size_t>(biased >> 12U << 4U | firstDigit)];
    return (isNegative ? c_signBit : 0) + head + (biased << c_exponentShift);
}

/// The exponent from c_leastPlainExponent - 33 to c_greatestPlainExponent, the coefficient of up to 34 digits.
inline Encoding Pack(Finite const& value) noexcept
{
    FirstAndRest const high = SplitFirst(value.coefficient.high);
    std::uint64_t const upper = PackFraction(0, high.fraction);
    return { PackLimb(value.coefficient.low) | upper << c_limbBits,
             PackHead(value.isNegative, value.exponent, high.first) | upper >> 4U };
}

constexpr bool IsPlainExponent(int exponent) noexcept
{
    return exponent >= c_leastPlainExponent && exponent <= c_greatestPlainExponent;
}

/// What most amounts are: an exponent from -2080 to 2015 and no digit above the lower word's 60 bits. Two such numbers
/// are recognised by one comparison, and no result of theirs leaves the plain exponents.
constexpr std::uint64_t c_smallPattern = std::uint64_t{ 1 } << 61;
constexpr std::uint64_t c_smallMask = std::uint64_t{ 0x7C } << 56 | c_upperDeclets;

template <unsigned Bits>
constexpr bool AreSmall(Encoding a, Encoding b) noexcept
{
    return ((((a.high ^ c_smallPattern) | (b.high ^ c_smallPattern)) & c_smallMask) | (a.low | b.low) >> Bits) == 0;
}

template <unsigned Bits>
constexpr bool IsSmall(Encoding a) noexcept
{
    return AreSmall<Bits>(a, a);
}

/// Of a small number.
constexpr int GetSmallExponent(Encoding encoding) noexcept
{
    return static_cast<int>(encoding.high >> c_exponentShift & 0xFFFU) + 0x1000 - c_bias;
}

constexpr bool IsSmallExponent(int exponent) noexcept
{
    return exponent >= 0x1000 - c_bias && exponent <= 0x1FFF - c_bias;
}

/// The high word of a small number.
constexpr std::uint64_t PackSmallHead(bool isNegative, int exponent) noexcept
{
    std::uint64_t const biased = static_cast<std::uint64_t>(exponent + c_bias - 0x1000);
    return c_smallPattern | biased << c_exponentShift | (isNegative ? c_signBit : std::uint64_t{ 0 });
}

/// Of a number below 10^18 with a small exponent.
inline Encoding PackSmall(bool isNegative, int exponent, std::uint64_t coefficient) noexcept
{
    return { PackLimb(coefficient), PackSmallHead(isNegative, exponent) };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
