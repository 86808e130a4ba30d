#pragma once

#include <Platform/Attributes.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

#include <cstddef>
#include <cstdint>

/// The texts of numbers of up to 34 digits, a declet at a time.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

constexpr std::size_t c_decletsCount = 11;

/// All 34 digits: those of the declets behind the first `before` one unit further down.
VEK_INLINE void WriteDigits(wchar_t* target, Encoding value, std::size_t before) noexcept
{
    static constexpr std::uint8_t gaps[2 * c_decletsCount] = { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                                               1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1 };
    std::uint8_t const* const gap = gaps + c_decletsCount - before;
    auto const write = [target, gap](std::size_t index, std::size_t declet)
    { Platform::StoreFour(target + 1 + 3 * index + gap[index], c_charactersOfDeclets[declet]); };
    std::uint64_t const upper = GetUpperDeclets(value);
    target[0] = static_cast<wchar_t>(L'0' + GetFirstDigit(value));
    write(0, GetDeclet(upper, 4));
    write(1, GetDeclet(upper, 3));
    write(2, GetDeclet(upper, 2));
    write(3, GetDeclet(upper, 1));
    write(4, GetDeclet(upper, 0));
    write(5, GetDeclet(value.low, 5));
    write(6, GetDeclet(value.low, 4));
    write(7, GetDeclet(value.low, 3));
    write(8, GetDeclet(value.low, 2));
    write(9, GetDeclet(value.low, 1));
    write(10, GetDeclet(value.low, 0));
}

constexpr std::size_t c_separatedSize = c_precision + 1;

/// All 34 digits with the separator behind `whole` of them, 1 to 34, in c_separatedSize units; then a unit 0, where a
/// string has its own.
VEK_INLINE void WriteSeparated(wchar_t* target, Encoding value, std::size_t whole, wchar_t separator) noexcept
{
    std::size_t const before = (whole + 1) / 3; // declets that begin before the separator
    WriteDigits(target, value, before);
    if (before != 0)
        Platform::OpenGap(target + 3 * before - 2, whole + 2 - 3 * before);
    target[whole] = separator;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
