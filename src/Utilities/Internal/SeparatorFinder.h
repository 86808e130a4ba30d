#pragma once

#include <Platform/WideBlock.h>

#include <bit>
#include <cstddef>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// Of eight units: all bits of a lane are set where a separator, which is below 0x7FFF, or a backslash stands.
inline __m128i MarkSeparators(wchar_t const* units, wchar_t separator) noexcept
{
    __m128i const lanes = Platform::LoadUnits(units);
    __m128i const isSeparator = _mm_cmpeq_epi16(lanes, _mm_set1_epi16(static_cast<short>(separator)));
    __m128i const isBackslash = _mm_cmpeq_epi16(lanes, _mm_set1_epi16(L'\\'));
    return _mm_or_si128(isSeparator, isBackslash);
}

/// Finds separators and backslashes in wide text, eight units at a time.
class SeparatorFinder
{
public:
    SeparatorFinder(std::wstring_view text, wchar_t separator) noexcept
        : m_separator(separator),
          m_end(text.data() + text.size()),
          // Units from 0x7FFF up are not told apart in a block.
          m_hasBlocks(text.size() >= c_blockSize && Platform::ToUnsigned(separator) < 0x7FFF)
    {
    }

    /// The first separator or backslash in the text from `at` on, or the end of the text.
    wchar_t const* Find(wchar_t const* at) const noexcept { return m_hasBlocks ? FindByBlocks(at) : FindByUnits(at); }

private:
    static constexpr std::ptrdiff_t c_blockSize = 8;

    wchar_t const* FindByBlocks(wchar_t const* at) const noexcept
    {
        for (; m_end - at >= c_blockSize; at += c_blockSize)
            if (unsigned const hits = FindInBlock(at); hits != 0)
                return at + std::countr_zero(hits) / 2;
        // The last block begins before `at`.
        std::ptrdiff_t const known = c_blockSize - (m_end - at);
        unsigned const hits = FindInBlock(m_end - c_blockSize) >> (2 * known);
        return hits != 0 ? at + std::countr_zero(hits) / 2 : m_end;
    }

    wchar_t const* FindByUnits(wchar_t const* at) const noexcept
    {
        while (at != m_end && *at != m_separator && *at != L'\\')
            ++at;
        return at;
    }

    /// Two bits a unit.
    unsigned FindInBlock(wchar_t const* at) const noexcept
    {
        return Platform::GetSignBits(MarkSeparators(at, m_separator));
    }

    wchar_t m_separator;
    wchar_t const* m_end;
    bool m_hasBlocks;
};

} // namespace Vek::Framework::Utilities
