#include <Utilities/HexConverter.h>

#include <Exceptions/ArgumentException.h>

#include <Platform/WideBlock.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::size_t c_digitsInBlock = 32;

bool IsDigit(wchar_t unit) noexcept
{
    auto const value = Platform::ToUnsigned(unit);
    return value <= 0xFF && c_hexDigitValues[value] <= 15;
}

/// The values of sixteen digits, more than 15 for what is none (after W. Mula, "Parsing hex numbers with validation").
__m128i GetValues(wchar_t const* digits) noexcept
{
    // What is no 8-bit character comes as 0 or 255, which are no digits.
    __m128i const symbols = _mm_packus_epi16(Platform::LoadUnits(digits), Platform::LoadUnits(digits + 8));
    // Figures go to the end of the range, 0xF6 to 0xFF; what lies below it stays apart from them by 6.
    __m128i const figures = _mm_add_epi8(symbols, _mm_set1_epi8(static_cast<char>(0xFF - '9')));
    __m128i const spread = _mm_subs_epu8(figures, _mm_set1_epi8(6));
    __m128i const numbers = _mm_sub_epi8(spread, _mm_set1_epi8(static_cast<char>(0xF0)));
    __m128i const letters = _mm_sub_epi8(_mm_or_si128(symbols, _mm_set1_epi8(0x20)), _mm_set1_epi8('a'));
    return _mm_min_epu8(numbers, _mm_adds_epu8(letters, _mm_set1_epi8(10)));
}

/// Eight bytes of sixteen values, one a lane: high * 0x1000 and low * 0x100 meet in the lane's upper half.
__m128i JoinValues(__m128i values) noexcept
{
    return _mm_srli_epi16(_mm_mullo_epi16(values, _mm_set1_epi16(0x1001)), 8);
}

/// Answers the number of digits taken, up to the first block that holds anything else or to where there are not enough.
std::size_t ReadBlocks(std::wstring_view digits, unsigned char* target) noexcept
{
    std::size_t taken = 0;
    for (; digits.size() - taken >= c_digitsInBlock; taken += c_digitsInBlock)
    {
        __m128i const low = GetValues(digits.data() + taken);
        __m128i const high = GetValues(digits.data() + taken + c_digitsInBlock / 2);
        // The sign tells of more than 15.
        if (Platform::GetSignBits(_mm_adds_epu8(_mm_max_epu8(low, high), _mm_set1_epi8(0x7F - 15))) != 0)
            break;
        Platform::StoreBytes(target + taken / 2, _mm_packus_epi16(JoinValues(low), JoinValues(high)));
    }
    return taken;
}

} // namespace

void HexConverter::Refuse(std::wstring const& text, unsigned long long index)
{
    if (index >= text.size() / 2)
        throw std::out_of_range("invalid string position");
    throw ArgumentException();
}

bool HexConverter::TryReadBytes(std::wstring_view text, std::unique_ptr<SizedArray<unsigned char>>& bytes,
                                unsigned long long& errorPosition)
{
    auto result = std::make_unique<SizedArray<unsigned char>>(text.size() / 2);
    std::size_t const taken = ReadBlocks(text, result->GetData());
    auto const other = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(taken), text.end(), IsDigit);
    if (other != text.end() || text.size() % 2 != 0)
    {
        errorPosition = static_cast<unsigned long long>(other - text.begin());
        return false;
    }
    for (std::size_t at = taken; at != text.size(); at += 2)
        result->GetAt(at / 2) = static_cast<unsigned char>(c_hexDigitValues[Platform::ToUnsigned(text[at])] << 4U |
                                                           c_hexDigitValues[Platform::ToUnsigned(text[at + 1])]);
    bytes = std::move(result);
    return true;
}

} // namespace Vek::Framework::Utilities
