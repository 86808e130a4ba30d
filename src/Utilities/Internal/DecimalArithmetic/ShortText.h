#pragma once

#include <Platform/WideBlock.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

/// The texts of most amounts.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// Up to fifteen digits, with the zeros before and behind the separator: nearly every amount. Its exponent is from -14
/// to 0; this is how far above -14 it is, and more for any other number.
constexpr std::uint64_t GetShortExponent(Encoding value) noexcept
{
    constexpr std::uint64_t least = PackSmallHead(false, 1 - c_wordDigits) << 1U;
    return std::rotr((value.high << 1U) - least, c_exponentShift + 1) | value.low >> c_packedBits << 4U;
}

constexpr std::uint64_t c_greatestShortExponent = c_wordDigits - 1;

constexpr bool IsShort(Encoding value) noexcept
{
    return GetShortExponent(value) <= c_greatestShortExponent;
}

/// All digits but those behind the separator, by GetShortExponent.
constexpr auto c_wholeDigits = []
{
    std::array<std::uint64_t, c_wordDigits> masks{};
    for (unsigned i = 0; i < masks.size(); ++i)
        masks[i] = ~std::uint64_t{ 0 } << 4 * (c_greatestShortExponent - i);
    return masks;
}();

/// How many units of sign a number of some digits has, none when they are all 0.
constexpr std::size_t GetSign(Encoding value, std::uint64_t digits) noexcept
{
    return static_cast<std::size_t>((value.high & (0 - digits)) >> 63U);
}

/// Such a number, and how it is to be written.
struct ShortText
{
    explicit ShortText(Encoding value) noexcept
    {
        auto const exponent = static_cast<unsigned>(GetShortExponent(value));
        std::uint64_t const digits = UnpackDigits(value.low);
        std::uint64_t const before = digits & c_wholeDigits[exponent];
        // Sixteen digits have no place for a zero in front, but for the one before the separator.
        unsigned const zeros = (static_cast<unsigned>(std::countl_zero(digits | 1U)) - 4) / 4;
        unsigned const left = std::min(zeros, exponent);
        spread = (digits + before * 15) << 4 * left;
        whole = 1 + exponent - left;
        sign = GetSign(value, digits);
        size = sign + c_wordDigits - left + (exponent != c_greatestShortExponent ? 1 : 0);
    }

    /// A sign, and sixteen units in one go.
    static constexpr std::size_t c_room = 1 + 16;

    std::size_t Write(wchar_t* target, wchar_t separator) const noexcept
    {
        target[0] = L'-';
        target += sign;
        Platform::StoreDigits(target, spread);
        target[whole] = separator;
        return size;
    }

    std::uint64_t spread; // sixteen digits of four bits, the first one on top, with a gap before the fraction
    std::size_t whole;    // digits before the separator
    std::size_t sign;     // 0 or 1 unit
    std::size_t size;
};

/// The same with a unit between groups of three digits before the separator: up to four groups.
constexpr std::size_t c_groupedRoom = 1 + 16 + 16;

inline bool FitsFourGroups(Encoding value) noexcept
{
    unsigned const fraction = static_cast<unsigned>(c_greatestShortExponent - GetShortExponent(value));
    return UnpackDigits(value.low) >> 4 * fraction >> 48U == 0;
}

/// Into c_groupedRoom units; answers how many of them are the text.
inline std::size_t WriteGrouped(wchar_t* target, Encoding value, wchar_t separator, wchar_t grouping) noexcept
{
    auto const fraction = static_cast<unsigned>(c_greatestShortExponent - GetShortExponent(value));
    std::uint64_t const digits = UnpackDigits(value.low);
    std::uint64_t const whole = digits >> 4 * fraction;
    auto const count = (static_cast<unsigned>(std::bit_width(whole | 1U)) + 3) / 4;
    unsigned const size = count + (count - 1) / 3;
    std::uint64_t const spread =
        (whole & 0xFFF) | (whole & 0xFFF000) << 4U | (whole & 0xFFF000000) << 8U | whole >> 36U << 48U;
    std::size_t const sign = GetSign(value, digits);
    target[0] = L'-';
    wchar_t* const begin = target + sign;
    Platform::StoreDigits(begin, spread << 4 * (16 - size));
    for (unsigned groups = size; groups > 4; groups -= 4)
        begin[groups - 4] = grouping;
    if (fraction == 0)
        return sign + size;
    begin[size] = separator;
    Platform::StoreDigits(begin + size + 1, digits << 4 * (16 - fraction));
    return sign + size + 1 + fraction;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
