#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

/// A set of bytes, and the search for the first of them in a text: 16 bytes at a time while the set has at most four.
class ByteFinder
{
public:
    ByteFinder() = default;

    void Add(unsigned char byte)
    {
        if (m_contains[byte])
            return;
        m_contains[byte] = true;
        if (m_count < c_lanes)
            for (std::size_t lane = m_count; lane < c_lanes; ++lane)
                m_needles[lane] = _mm_set1_epi8(static_cast<char>(byte));
        ++m_count;
    }

    /// The first byte of the set in [at, end), or `end`.
    char const* Find(char const* at, char const* end) const
    {
        if (m_count <= c_lanes && m_count != 0)
            for (; end - at >= 16; at += 16)
                if (int const hits = MatchBlock(at); hits != 0)
                    return at + std::countr_zero(static_cast<unsigned int>(hits));
        while (at != end && !m_contains[static_cast<unsigned char>(*at)])
            ++at;
        return at;
    }

private:
    static constexpr std::size_t c_lanes = 4;

    int MatchBlock(char const* at) const
    {
        __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
        __m128i const low = _mm_or_si128(_mm_cmpeq_epi8(block, m_needles[0]), _mm_cmpeq_epi8(block, m_needles[1]));
        __m128i const high = _mm_or_si128(_mm_cmpeq_epi8(block, m_needles[2]), _mm_cmpeq_epi8(block, m_needles[3]));
        return _mm_movemask_epi8(_mm_or_si128(low, high));
    }

    __m128i m_needles[c_lanes] {}; // the last byte fills the lanes that are left
    std::array<bool, 256> m_contains {};
    std::size_t m_count = 0;
};

} // namespace Vek::Framework::IParser::Native::Internal
