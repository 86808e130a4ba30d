#pragma once

#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

// `inline` says nothing new of a template, but the compiler takes it for a hint, and these are short ways only in
// place.

/// One bit for each of the 16 bytes at `at` that is one of `members`, or below the space where `withControls` is set.
template <bool withControls, char... members>
inline unsigned int MatchAny(char const* at)
{
    __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
    __m128i matches = _mm_setzero_si128();
    if constexpr (withControls)
        matches = _mm_cmpeq_epi8(_mm_min_epu8(block, _mm_set1_epi8(' ' - 1)), block);
    ((matches = _mm_or_si128(matches, _mm_cmpeq_epi8(block, _mm_set1_epi8(members)))), ...);
    return static_cast<unsigned int>(_mm_movemask_epi8(matches));
}

/// The last bytes of a text, which are fewer than a block: apart, so that what they come after is short.
template <bool withControls, char... members>
char const* FindMatchInRest(char const* at, char const* end)
{
    auto const isControl = [](char c) { return withControls && static_cast<unsigned char>(c) < ' '; };
    while (at != end && ((*at != members) && ...) && !isControl(*at))
        ++at;
    return at;
}

template <bool withControls, char... members>
inline char const* FindMatch(char const* at, char const* end)
{
    constexpr std::ptrdiff_t c_blockSize = 16;
    for (; end - at >= c_blockSize; at += c_blockSize)
        if (unsigned int const hits = MatchAny<withControls, members...>(at); hits != 0)
            return at + std::countr_zero(hits);
    return FindMatchInRest<withControls, members...>(at, end);
}

/// The first of the bytes `members` in [at, end), or `end`; 16 bytes at a time.
template <char... members>
inline char const* FindAny(char const* at, char const* end)
{
    return FindMatch<false, members...>(at, end);
}

/// The first byte in [at, end) that is none of `members`, or `end`; 16 bytes at a time.
template <char... members>
inline char const* FindOther(char const* at, char const* end)
{
    constexpr std::ptrdiff_t c_blockSize = 16;
    for (; end - at >= c_blockSize; at += c_blockSize)
        if (unsigned int const others = MatchAny<false, members...>(at) ^ 0xFFFFU; others != 0)
            return at + std::countr_zero(others);
    while (at != end && ((*at == members) || ...))
        ++at;
    return at;
}

/// The first byte in [at, end) that is one of `members` or below the space, or `end`.
template <char... members>
inline char const* FindAnyOrControl(char const* at, char const* end)
{
    return FindMatch<true, members...>(at, end);
}

} // namespace Vek::Framework::IParser::Native::Internal
