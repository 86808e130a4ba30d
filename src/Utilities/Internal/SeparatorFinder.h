#pragma once

#include <Platform/WideBlock.h>

#include <bit>
#include <cstddef>
#include <string>

namespace Vek::Framework::Utilities
{

/// Finds separators and backslashes in wide text, eight units at a time.
class SeparatorFinder
{
public:
    SeparatorFinder(std::wstring const& text, wchar_t separator) noexcept
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
        __m128i const units = Platform::LoadUnits(at);
        __m128i const isSeparator = _mm_cmpeq_epi16(units, _mm_set1_epi16(static_cast<short>(m_separator)));
        __m128i const isBackslash = _mm_cmpeq_epi16(units, _mm_set1_epi16(L'\\'));
        return Platform::GetSignBits(_mm_or_si128(isSeparator, isBackslash));
    }

    wchar_t m_separator;
    wchar_t const* m_end;
    bool m_hasBlocks;
};

} // namespace Vek::Framework::Utilities
