#pragma once

#include <Platform/WideBlock.h>

#include <bit>
#include <cstddef>

namespace Vek::Framework::Utilities
{

/// Finds separators and backslashes in wide text, eight units at a time.
class SeparatorFinder
{
public:
    explicit SeparatorFinder(wchar_t separator) noexcept : m_separator(separator) {}

    /// The first separator or backslash in [at, end), or `end`.
    wchar_t const* Find(wchar_t const* at, wchar_t const* end) const noexcept
    {
        // Units from 0x7FFF up are not told apart in a block.
        if (Platform::ToUnsigned(m_separator) < 0x7FFF)
            for (; end - at >= c_blockSize; at += c_blockSize)
                if (unsigned const hits = FindInBlock(at); hits != 0)
                    return at + std::countr_zero(hits) / 2;
        while (at != end && *at != m_separator && *at != L'\\')
            ++at;
        return at;
    }

private:
    static constexpr std::ptrdiff_t c_blockSize = 8;

    /// Two bits a unit.
    unsigned FindInBlock(wchar_t const* at) const noexcept
    {
        __m128i const units = Platform::LoadUnits(at);
        __m128i const isSeparator = _mm_cmpeq_epi16(units, _mm_set1_epi16(static_cast<short>(m_separator)));
        __m128i const isBackslash = _mm_cmpeq_epi16(units, _mm_set1_epi16(L'\\'));
        return Platform::GetSignBits(_mm_or_si128(isSeparator, isBackslash));
    }

    wchar_t m_separator;
};

} // namespace Vek::Framework::Utilities
