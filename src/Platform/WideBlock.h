#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <emmintrin.h>
#include <type_traits>

/// Blocks of wide text in SSE2 registers: the one place that knows how wide a wchar_t is.
namespace Vek::Platform
{

/// The unsigned value of a unit. wchar_t is signed on some platforms.
constexpr std::uint32_t ToUnsigned(wchar_t unit) noexcept
{
    return static_cast<std::make_unsigned_t<wchar_t>>(unit);
}

/// Eight units as 16-bit lanes. Units below 0x7FFF are exact; every other one comes as some value from 0x7FFF up.
inline __m128i LoadUnits(wchar_t const* units) noexcept
{
    auto const* const source = reinterpret_cast<__m128i const*>(units);
    if constexpr (sizeof(wchar_t) == 2)
        return _mm_loadu_si128(source);
    else
        return _mm_packs_epi32(_mm_loadu_si128(source), _mm_loadu_si128(source + 1));
}

/// Four units from each of two places, as LoadUnits has eight of one.
inline __m128i LoadHalves(wchar_t const* first, wchar_t const* second) noexcept
{
    auto const* const low = reinterpret_cast<__m128i const*>(first);
    auto const* const high = reinterpret_cast<__m128i const*>(second);
    if constexpr (sizeof(wchar_t) == 2)
        return _mm_unpacklo_epi64(_mm_loadl_epi64(low), _mm_loadl_epi64(high));
    else
        return _mm_packs_epi32(_mm_loadu_si128(low), _mm_loadu_si128(high));
}

/// Copies four units as they are.
inline void CopyHalf(wchar_t const* units, wchar_t* target) noexcept
{
    auto const* const from = reinterpret_cast<__m128i const*>(units);
    auto* const to = reinterpret_cast<__m128i*>(target);
    if constexpr (sizeof(wchar_t) == 2)
        _mm_storel_epi64(to, _mm_loadl_epi64(from));
    else
        _mm_storeu_si128(to, _mm_loadu_si128(from));
}

/// Copies eight units as they are.
inline void CopyUnits(wchar_t const* units, wchar_t* target) noexcept
{
    auto const* const from = reinterpret_cast<__m128i const*>(units);
    auto* const to = reinterpret_cast<__m128i*>(target);
    __m128i const low = _mm_loadu_si128(from);
    if constexpr (sizeof(wchar_t) != 2)
    {
        __m128i const high = _mm_loadu_si128(from + 1);
        _mm_storeu_si128(to + 1, high);
    }
    _mm_storeu_si128(to, low);
}

/// Writes eight 16-bit lanes as eight units.
inline void StoreUnits(wchar_t* units, __m128i lanes) noexcept
{
    auto* const target = reinterpret_cast<__m128i*>(units);
    if constexpr (sizeof(wchar_t) == 2)
    {
        _mm_storeu_si128(target, lanes);
    }
    else
    {
        _mm_storeu_si128(target, _mm_unpacklo_epi16(lanes, _mm_setzero_si128()));
        _mm_storeu_si128(target + 1, _mm_unpackhi_epi16(lanes, _mm_setzero_si128()));
    }
}

inline __m128i LoadBytes(void const* bytes) noexcept
{
    return _mm_loadu_si128(static_cast<__m128i const*>(bytes));
}

inline void StoreBytes(void* target, __m128i bytes) noexcept
{
    _mm_storeu_si128(static_cast<__m128i*>(target), bytes);
}

/// Writes sixteen bytes as sixteen units of the same value.
inline void StoreWidened(wchar_t* units, __m128i bytes) noexcept
{
    StoreUnits(units, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
    StoreUnits(units + 8, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
}

/// Compilers make one instruction of it.
constexpr std::uint64_t ReverseBytes(std::uint64_t value) noexcept
{
    value = (value & 0x00FF'00FF'00FF'00FF) << 8U | (value >> 8U & 0x00FF'00FF'00FF'00FF);
    value = (value & 0x0000'FFFF'0000'FFFF) << 16U | (value >> 16U & 0x0000'FFFF'0000'FFFF);
    return value << 32U | value >> 32U;
}

/// Writes sixteen digits of four bits each, the highest first, as characters.
inline void StoreDigits(wchar_t* units, std::uint64_t digits) noexcept
{
    __m128i const packed = _mm_cvtsi64_si128(static_cast<long long>(ReverseBytes(digits)));
    __m128i const nibble = _mm_set1_epi8(0x0F);
    __m128i const lower = _mm_and_si128(packed, nibble);
    __m128i const upper = _mm_and_si128(_mm_srli_epi64(packed, 4), nibble);
    StoreWidened(units, _mm_or_si128(_mm_unpacklo_epi8(upper, lower), _mm_set1_epi8('0')));
}

/// Writes four lanes of sixteen bits, the lowest first, as units.
inline void StoreFour(wchar_t* units, std::uint64_t lanes) noexcept
{
    __m128i const four = _mm_cvtsi64_si128(static_cast<long long>(lanes));
    auto* const target = reinterpret_cast<__m128i*>(units);
    if constexpr (sizeof(wchar_t) == 2)
        _mm_storel_epi64(target, four);
    else
        _mm_storeu_si128(target, _mm_unpacklo_epi16(four, _mm_setzero_si128()));
}

/// Moves those of four units behind the first `kept` ones by one; the last one falls off.
inline void OpenGap(wchar_t* units, std::size_t kept) noexcept
{
    static constexpr std::int32_t masks[] = { -1, -1, -1, -1, 0, 0, 0, 0 };
    if constexpr (sizeof(wchar_t) == 2)
    {
        std::uint64_t four = 0;
        std::memcpy(&four, units, sizeof(four));
        std::uint64_t const behind = four & ~std::uint64_t{ 0 } << 16 * kept;
        four = (four - behind) | behind << 16U;
        std::memcpy(units, &four, sizeof(four));
    }
    else
    {
        __m128i const four = LoadBytes(units);
        __m128i const keeps = LoadBytes(masks + 4 - kept);
        __m128i const moved = _mm_slli_si128(_mm_andnot_si128(keeps, four), 4);
        StoreBytes(units, _mm_or_si128(_mm_and_si128(keeps, four), moved));
    }
}

/// One bit for each of sixteen bytes: set where the byte's highest bit is.
inline unsigned GetSignBits(__m128i bytes) noexcept
{
    return static_cast<unsigned>(_mm_movemask_epi8(bytes));
}

/// One bit for each of sixteen lanes, eight in each argument: set where the lane is zero.
inline unsigned GetZeroBits(__m128i low, __m128i high) noexcept
{
    __m128i const zero = _mm_setzero_si128();
    return GetSignBits(_mm_packs_epi16(_mm_cmpeq_epi16(low, zero), _mm_cmpeq_epi16(high, zero)));
}

} // namespace Vek::Platform
