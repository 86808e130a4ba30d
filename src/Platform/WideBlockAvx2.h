#pragma once

#include <Platform/Attributes.h>

#include <cstddef>
#include <cstdint>
#include <immintrin.h>

/// Blocks of wide text in AVX2 registers, beside those of WideBlock.h. To be called only where HasAvx2 says so.
namespace Vek::Platform
{

/// The units before the next address from which on no register touches two lines of the cache. Who has done a block
/// goes on behind so many of its units, and does the others again: that saves a quarter of a long text's time.
inline std::size_t CountUnitsToBoundary(wchar_t const* units) noexcept
{
    return (0 - reinterpret_cast<std::uintptr_t>(units)) % sizeof(__m256i) / sizeof(wchar_t);
}

/// Writes eight 16-bit lanes as eight units.
VEK_NEEDS("avx2") inline void StoreUnitsByAvx2(wchar_t* units, __m128i lanes) noexcept
{
    if constexpr (sizeof(wchar_t) == 2)
        _mm_storeu_si128(reinterpret_cast<__m128i*>(units), lanes);
    else
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(units), _mm256_cvtepu16_epi32(lanes));
}

/// Sixteen bytes as sixteen units of the same value: half the stores, which the second-level cache takes twice as fast.
VEK_NEEDS("avx2") inline void StoreWidenedByAvx2(wchar_t* units, __m128i bytes) noexcept
{
    auto* const target = reinterpret_cast<__m256i*>(units);
    if constexpr (sizeof(wchar_t) == 2)
    {
        _mm256_storeu_si256(target, _mm256_cvtepu8_epi16(bytes));
    }
    else
    {
        _mm256_storeu_si256(target, _mm256_cvtepu8_epi32(bytes));
        _mm256_storeu_si256(target + 1, _mm256_cvtepu8_epi32(_mm_unpackhi_epi64(bytes, bytes)));
    }
}

struct NarrowedUnits
{
    /// The sign of each byte of both: set for some byte when a unit is not ASCII.
    __m256i others;
    /// A byte each; units that are none come as 0 or 255.
    __m256i bytes;
};

/// 32 units.
VEK_NEEDS("avx2") inline NarrowedUnits NarrowByAvx2(wchar_t const* units) noexcept
{
    auto const* const source = reinterpret_cast<__m256i const*>(units);
    __m256i low;
    __m256i high;
    if constexpr (sizeof(wchar_t) == 2)
    {
        low = _mm256_loadu_si256(source);
        high = _mm256_loadu_si256(source + 1);
    }
    else
    {
        low = _mm256_packs_epi32(_mm256_loadu_si256(source), _mm256_loadu_si256(source + 1));
        high = _mm256_packs_epi32(_mm256_loadu_si256(source + 2), _mm256_loadu_si256(source + 3));
    }
    __m256i const packed = _mm256_packus_epi16(low, high);
    __m256i const others = _mm256_or_si256(packed, _mm256_or_si256(low, high));
    // The halves of a register are packed each for itself.
    if constexpr (sizeof(wchar_t) == 2)
        return { others, _mm256_permute4x64_epi64(packed, 0xD8) };
    else
        return { others, _mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)) };
}

} // namespace Vek::Platform
