#include <Platform/CaseMapping.h>
#include <Platform/WideBlock.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace Vek::Framework::Utilities
{

namespace
{

using CaseTable = Platform::LazyPages<char16_t>;
constinit CaseTable::Storage s_foldPages;
constinit CaseTable s_folds(Platform::MapToGermanLowerCase, s_foldPages);

constexpr std::size_t c_blockSize = 8;

std::uint32_t Fold(wchar_t unit)
{
    std::uint32_t const value = Platform::ToUnsigned(unit);
    return value > 0xFFFFU ? value : s_folds.Get(static_cast<char16_t>(value));
}

/// Lower case for the letters of ASCII and Latin-1, which every locale agrees on; other lanes stay.
__m128i FoldLatin(__m128i lanes) noexcept
{
    __m128i const bit = _mm_set1_epi16(0x20);
    __m128i const lower = _mm_or_si128(lanes, bit);
    __m128i const inAscii =
        _mm_and_si128(_mm_cmpgt_epi16(lower, _mm_set1_epi16('a' - 1)), _mm_cmplt_epi16(lower, _mm_set1_epi16('z' + 1)));
    __m128i const inLatin =
        _mm_and_si128(_mm_cmpgt_epi16(lower, _mm_set1_epi16(0xDF)), _mm_cmplt_epi16(lower, _mm_set1_epi16(0xFF)));
    __m128i const isDivision = _mm_cmpeq_epi16(lower, _mm_set1_epi16(0xF7)); // U+00D7, U+00F7: signs, not letters
    __m128i const isLetter = _mm_or_si128(inAscii, _mm_andnot_si128(isDivision, inLatin));
    return _mm_or_si128(lanes, _mm_and_si128(isLetter, bit));
}

/// True when eight units are surely equal and hold no 0; false does not mean that they differ.
bool IsBlockEqual(wchar_t const* a, wchar_t const* b) noexcept
{
    __m128i const left = Platform::LoadUnits(a);
    __m128i const right = Platform::LoadUnits(b);
    __m128i const isEqual = _mm_cmpeq_epi16(FoldLatin(left), FoldLatin(right));
    // Lanes from 0x7FFF up may stand for another unit; they are negative or the greatest value.
    __m128i const isExact =
        _mm_and_si128(_mm_cmpgt_epi16(left, _mm_setzero_si128()), _mm_cmplt_epi16(left, _mm_set1_epi16(0x7FFF)));
    return Platform::GetSignBits(_mm_and_si128(isEqual, isExact)) == 0xFFFFU;
}

/// Compares `size` units of both, or up to the first 0.
int CompareUnits(wchar_t const* a, wchar_t const* b, std::size_t size)
{
    for (std::size_t at = 0; at < size; ++at)
    {
        if (a[at] == b[at])
        {
            if (a[at] == L'\0')
                return 0;
            continue;
        }
        std::uint32_t const left = Fold(a[at]);
        std::uint32_t const right = Fold(b[at]);
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

/// The same for texts of any size.
int CompareText(wchar_t const* a, wchar_t const* b, std::size_t size)
{
    std::size_t at = 0;
    for (; size - at >= c_blockSize; at += c_blockSize)
    {
        if (IsBlockEqual(a + at, b + at))
            continue;
        if (int const order = CompareUnits(a + at, b + at, c_blockSize); order != 0)
            return order;
        if (std::wstring_view(a + at, c_blockSize).find(L'\0') != std::wstring_view::npos)
            return 0;
    }
    // The last units once more together with some that are known to be equal.
    if (at != 0 && IsBlockEqual(a + size - c_blockSize, b + size - c_blockSize))
        return 0;
    return CompareUnits(a + at, b + at, size - at);
}

} // namespace

bool WStringHelper::ContainsIgnoreCase(std::wstring const& text, std::wstring const& part)
{
    return part.empty() || Platform::IsFoundIgnoringCase(text, part);
}

bool WStringHelper::StartsWithIgnoreCase(std::wstring const& text, std::wstring const& prefix)
{
    return text.size() >= prefix.size() && CompareText(text.data(), prefix.data(), prefix.size()) == 0;
}

bool WStringHelper::EndsWithIgnoreCase(std::wstring const& text, std::wstring const& suffix)
{
    if (text.size() < suffix.size())
        return false;
    return CompareText(text.data() + text.size() - suffix.size(), suffix.data(), suffix.size()) == 0;
}

bool WStringHelper::EqualsIgnoreCase(std::wstring const& a, std::wstring const& b)
{
    return a.size() == b.size() && CompareText(a.data(), b.data(), a.size()) == 0;
}

int WStringHelper::CompareIgnoreCase(std::wstring const& a, std::wstring const& b)
{
    // The terminator of the shorter text takes part: it meets a unit, or a 0 unit that ends the longer text as well.
    std::size_t const size = std::min(a.size(), b.size()) + (a.size() != b.size() ? 1 : 0);
    return CompareText(a.data(), b.data(), size);
}

} // namespace Vek::Framework::Utilities
