#pragma once

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

#include <bit>
#include <compare>
#include <cstdint>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

constexpr int c_wordDigits = 15;
constexpr unsigned c_wordBits = 4 * c_wordDigits;
constexpr std::uint64_t c_wordMask = (std::uint64_t{ 1 } << c_wordBits) - 1;
constexpr unsigned c_packedBits = 50; // of five declets, a word's digits
constexpr std::uint64_t c_packedMask = (std::uint64_t{ 1 } << c_packedBits) - 1;

/// Five declets as fifteen digits of four bits each.
inline std::uint64_t UnpackDigits(std::uint64_t declets) noexcept
{
    return std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 0)] } |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 1)] } << 12U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 2)] } << 24U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 3)] } << 36U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 4)] } << 48U;
}

/// Fifteen digits as five declets.
inline std::uint64_t PackDigits(std::uint64_t digits) noexcept
{
    return std::uint64_t{ c_decletsOfDigits[digits & 0xFFFU] } |
           std::uint64_t{ c_decletsOfDigits[digits >> 12U & 0xFFFU] } << 10U |
           std::uint64_t{ c_decletsOfDigits[digits >> 24U & 0xFFFU] } << 20U |
           std::uint64_t{ c_decletsOfDigits[digits >> 36U & 0xFFFU] } << 30U |
           std::uint64_t{ c_decletsOfDigits[digits >> 48U & 0xFFFU] } << 40U;
}

constexpr std::uint64_t c_sixes = 0x0666'6666'6666'6666;
constexpr std::uint64_t c_carries = 0x1111'1111'1111'1110; // the lowest bit of every digit but the first

/// Six in every digit whose carry is set.
constexpr std::uint64_t GetSixes(std::uint64_t carries) noexcept
{
    return (carries >> 3U) * 3;
}

/// Of fifteen digits and a carry into the first; the sixteenth digit of the sum is the carry out. Sixes make every
/// digit that reaches ten carry; those that did not are taken back.
constexpr std::uint64_t AddDigits(std::uint64_t a, std::uint64_t b, std::uint64_t carry = 0) noexcept
{
    std::uint64_t const raised = a + c_sixes;
    std::uint64_t const sum = raised + b + carry;
    std::uint64_t const withoutCarry = ~(sum ^ raised ^ b) & c_carries;
    return sum - GetSixes(withoutCarry);
}

struct DigitDifference
{
    std::uint64_t digits;
    std::uint64_t borrow;
};

/// A digit that borrowed did so as sixteen, six too many.
constexpr DigitDifference SubtractDigits(std::uint64_t a, std::uint64_t b, std::uint64_t borrow = 0) noexcept
{
    std::uint64_t const difference = a - b - borrow;
    std::uint64_t const borrowed = (difference ^ a ^ b) & c_carries;
    return { (difference - GetSixes(borrowed)) & c_wordMask, borrowed >> c_wordBits };
}

/// Fifteen digits; false, with nothing changed, if they have no room for `count` zeros.
constexpr bool ShiftWordLeft(std::uint64_t& digits, int count) noexcept
{
    unsigned const bits = 4U * static_cast<unsigned>(count);
    if (count >= c_wordDigits || digits >> (c_wordBits - bits) != 0)
        return false;
    digits <<= bits;
    return true;
}

/// Up to 46 digits of four bits each: sums take a look-up for every declet in and out, and no division.
struct PackedDigits
{
    std::uint64_t high;
    std::uint64_t middle; // fifteen digits
    std::uint64_t low;    // fifteen digits

    friend constexpr std::strong_ordering operator<=>(PackedDigits const& a, PackedDigits const& b) = default;
    constexpr bool IsZero() const noexcept { return (high | middle | low) == 0; }
};

constexpr int CountDigits(PackedDigits const& value) noexcept
{
    std::uint64_t const word = value.high != 0 ? value.high : value.middle != 0 ? value.middle : value.low;
    int const below = value.high != 0 ? 2 * c_wordDigits : value.middle != 0 ? c_wordDigits : 0;
    return below + (static_cast<int>(std::bit_width(word)) + 3) / 4;
}

constexpr PackedDigits Add(PackedDigits const& a, PackedDigits const& b) noexcept
{
    std::uint64_t const low = AddDigits(a.low, b.low);
    std::uint64_t const middle = AddDigits(a.middle, b.middle, low >> c_wordBits);
    return { AddDigits(a.high, b.high, middle >> c_wordBits), middle & c_wordMask, low & c_wordMask };
}

/// By any number of digits that leaves room for those of `value`.
constexpr PackedDigits ShiftLeft(PackedDigits value, int count) noexcept
{
    for (; count >= c_wordDigits; count -= c_wordDigits)
        value = { value.middle, value.low, 0 };
    unsigned const bits = 4U * static_cast<unsigned>(count);
    return { value.high << bits | value.middle >> (c_wordBits - bits),
             (value.middle << bits | value.low >> (c_wordBits - bits)) & c_wordMask, value.low << bits & c_wordMask };
}

/// Sets `isCut` if a digit other than zero is dropped.
constexpr PackedDigits ShiftRight(PackedDigits value, int count, bool& isCut) noexcept
{
    for (; count >= c_wordDigits && !value.IsZero(); count -= c_wordDigits)
    {
        isCut = isCut || value.low != 0;
        value = { 0, value.high, value.middle };
    }
    if (value.IsZero())
        return value;
    unsigned const bits = 4U * static_cast<unsigned>(count);
    isCut = isCut || (value.low & ((std::uint64_t{ 1 } << bits) - 1)) != 0;
    return { value.high >> bits, (value.high << (c_wordBits - bits) | value.middle >> bits) & c_wordMask,
             (value.middle << (c_wordBits - bits) | value.low >> bits) & c_wordMask };
}

/// The digits of a finite number.
inline PackedDigits UnpackAllDigits(Encoding encoding) noexcept
{
    std::uint64_t const highest = c_digitsOfDeclets[GetDeclet(encoding.high >> 36U, 0)];
    return { std::uint64_t{ GetFirstDigit(encoding) } << 12U | highest,
             UnpackDigits((encoding.low >> c_packedBits | encoding.high << 14U) & c_packedMask),
             UnpackDigits(encoding.low & c_packedMask) };
}

/// Of up to 34 digits.
inline Encoding PackAllDigits(bool isNegative, int exponent, PackedDigits const& digits) noexcept
{
    std::uint64_t const middle = PackDigits(digits.middle);
    std::uint64_t const highest = c_decletsOfDigits[digits.high & 0xFFFU];
    return { PackDigits(digits.low) | middle << c_packedBits,
             PackHead(isNegative, exponent, digits.high >> 12U) | highest << 36U | middle >> 14U };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
