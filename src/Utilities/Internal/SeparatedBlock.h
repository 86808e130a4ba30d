#pragma once

#include <Platform/WideBlock.h>

#include <cstddef>

/// Separators and backslashes in blocks of units.
namespace Vek::Framework::Utilities
{

constexpr std::size_t c_unitsInBlock = 8;

/// Whether a unit ends a value, or takes the next one as it is.
constexpr bool IsStop(wchar_t unit, wchar_t separator) noexcept
{
    return unit == separator || unit == L'\\';
}

/// Whether blocks tell the separator from every other unit: those that a byte does not hold come as its first or last
/// value there.
constexpr bool IsToldInBlocks(wchar_t separator) noexcept
{
    return separator > 0 && separator < 0xFF;
}

/// All bits of a lane are set where one of eight units is a stop.
inline __m128i MarkStops(__m128i units, wchar_t separator) noexcept
{
    __m128i const isSeparator = _mm_cmpeq_epi16(units, _mm_set1_epi16(static_cast<short>(separator)));
    __m128i const isBackslash = _mm_cmpeq_epi16(units, _mm_set1_epi16(L'\\'));
    return _mm_or_si128(isSeparator, isBackslash);
}

inline __m128i MarkStops(wchar_t const* units, wchar_t separator) noexcept
{
    return MarkStops(Platform::LoadUnits(units), separator);
}

} // namespace Vek::Framework::Utilities
