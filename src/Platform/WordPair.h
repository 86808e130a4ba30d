#pragma once

#include <bit>
#include <cstdint>
#include <emmintrin.h>

namespace Vek::Platform
{

/// A plain value of sixteen bytes from its two words, the low one first, as the result of an operation.
///
/// Where such results come in registers, it is taken from these. On Windows they go through memory, where hosts copy
/// them as one word of sixteen bytes: a load that must wait for its stores unless it was stored so.
template <class Value>
inline Value JoinWords(std::uint64_t low, std::uint64_t high) noexcept
{
#if defined(_WIN32)
    Value value;
    static_assert(sizeof(value) == sizeof(__m128i));
    __m128i const words = _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(&value), words);
    return value;
#else
    struct Words
    {
        std::uint64_t low;
        std::uint64_t high;
    };
    return std::bit_cast<Value>(Words{ low, high });
#endif
}

} // namespace Vek::Platform
