#pragma once

#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

/// The first of the bytes `members` in [at, end), or `end`; 16 bytes at a time.
template <char... members>
char const* FindAny(char const* at, char const* end)
{
    constexpr std::ptrdiff_t c_blockSize = 16;
    for (; end - at >= c_blockSize; at += c_blockSize)
    {
        __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
        __m128i matches = _mm_setzero_si128();
        ((matches = _mm_or_si128(matches, _mm_cmpeq_epi8(block, _mm_set1_epi8(members)))), ...);
        unsigned int const hits = static_cast<unsigned int>(_mm_movemask_epi8(matches));
        if (hits != 0)
            return at + std::countr_zero(hits);
    }
    while (at != end && ((*at != members) && ...))
        ++at;
    return at;
}

} // namespace Vek::Framework::IParser::Native::Internal
