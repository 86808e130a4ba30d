#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

/// A set of bytes, and the search for its members in a text: 16 bytes at a time while the set has at most eight.
class ByteFinder
{
public:
    bool Contains(char byte) const { return m_contains[static_cast<unsigned char>(byte)]; }

    void Add(unsigned char byte)
    {
        if (m_contains[byte])
            return;
        m_contains[byte] = true;
        for (std::size_t lane = m_count; lane < c_lanes; ++lane)
            m_needles[lane] = _mm_set1_epi8(static_cast<char>(byte));
        ++m_count;
    }

    void Remove(unsigned char byte)
    {
        if (!m_contains[byte])
            return;
        ByteFinder rest;
        for (std::size_t member = 0; member < m_contains.size(); ++member)
            if (m_contains[member] && member != byte)
                rest.Add(static_cast<unsigned char>(member));
        *this = rest;
    }

    /// The first member of the set in [at, end), or `end`.
    char const* Find(char const* at, char const* end) const
    {
        if (m_count <= c_lanes)
        {
            if (m_count == 0)
                return end;
            for (; end - at >= c_blockSize; at += c_blockSize)
                if (unsigned int const hits = m_count <= 4 ? MatchBlock<4>(at) : MatchBlock<8>(at); hits != 0)
                    return at + std::countr_zero(hits);
        }
        for (; end - at >= 4; at += 4) // most runs are short, and this spares three looks for the end
        {
            if (Contains(at[0]))
                return at;
            if (Contains(at[1]))
                return at + 1;
            if (Contains(at[2]))
                return at + 2;
            if (Contains(at[3]))
                return at + 3;
        }
        while (at != end && !Contains(*at))
            ++at;
        return at;
    }

    /// The first byte in [at, end) that is not in the set, or `end`.
    char const* FindOther(char const* at, char const* end) const
    {
        // One or two members are the most common run by far, and not worth a block.
        for (int looks = 0; looks < 2; ++looks, ++at)
            if (at == end || !Contains(*at))
                return at;
        if (m_count <= 4)
            for (; end - at >= c_blockSize; at += c_blockSize)
                if (unsigned int const others = MatchBlock<4>(at) ^ 0xFFFFU; others != 0)
                    return at + std::countr_zero(others);
        while (at != end && Contains(*at))
            ++at;
        return at;
    }

private:
    static constexpr std::ptrdiff_t c_blockSize = 16;
    static constexpr std::size_t c_lanes = 8;

    template <std::size_t lanes>
    unsigned int MatchBlock(char const* at) const
    {
        __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
        __m128i hits = _mm_cmpeq_epi8(block, m_needles[0]);
        for (std::size_t lane = 1; lane < lanes; ++lane)
            hits = _mm_or_si128(hits, _mm_cmpeq_epi8(block, m_needles[lane]));
        return static_cast<unsigned int>(_mm_movemask_epi8(hits));
    }

    __m128i m_needles[c_lanes]{}; // the last member fills the lanes that are left
    std::array<bool, 256> m_contains{};
    std::size_t m_count = 0;
};

} // namespace Vek::Framework::IParser::Native::Internal
