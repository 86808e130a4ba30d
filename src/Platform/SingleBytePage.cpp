#include <Platform/SingleBytePage.h>
#include <Platform/WideBlock.h>

#include <bit>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_blockSize = 16;
constexpr std::size_t c_stretchSize = 64;

/// Calls `action` with the position of every set bit.
template <typename Action>
void ForEachBit(unsigned bits, Action action)
{
    for (; bits != 0; bits &= bits - 1)
        action(static_cast<unsigned>(std::countr_zero(bits)));
}

} // namespace

std::wstring SingleBytePage::Decode(std::string const& text) const
{
    // Made by its constructor: filling it first would store every unit twice.
    auto const* const bytes = reinterpret_cast<unsigned char const*>(text.data());
    std::wstring result(bytes, bytes + text.size());
    // Most stretches need no more.
    std::size_t at = 0;
    for (; text.size() - at >= c_stretchSize; at += c_stretchSize)
    {
        __m128i mapped = _mm_setzero_si128();
        for (std::size_t block = 0; block < c_stretchSize; block += c_blockSize)
            mapped = _mm_or_si128(mapped, MarkMapped(LoadBytes(&text[at + block])));
        if (GetSignBits(mapped) != 0)
            DecodeMapped(text, at, at + c_stretchSize, result);
    }
    DecodeMapped(text, at, text.size(), result);
    return result;
}

void SingleBytePage::DecodeMapped(std::string const& text, std::size_t at, std::size_t end,
                                  std::wstring& result) const noexcept
{
    for (; end - at >= c_blockSize; at += c_blockSize)
        ForEachBit(GetSignBits(MarkMapped(LoadBytes(&text[at]))),
                   [&](unsigned bit) { result[at + bit] = DecodeByte(text[at + bit]); });
    for (; at < end; ++at)
        result[at] = DecodeByte(text[at]);
}

std::string SingleBytePage::Encode(std::wstring const& text)
{
    std::string result(text.size(), '\0');
    std::size_t at = 0;
    for (; text.size() - at >= c_blockSize; at += c_blockSize)
    {
        __m128i const low = LoadUnits(&text[at]);
        __m128i const high = LoadUnits(&text[at + c_blockSize / 2]);
        StoreBytes(&result[at], _mm_packus_epi16(low, high));
        ForEachBit(FindMapped(low, high), [&](unsigned bit) { result[at + bit] = EncodeUnit(text[at + bit]); });
    }
    for (; at < text.size(); ++at)
        result[at] = EncodeUnit(text[at]);
    return result;
}

/// The highest bit of the bytes whose unit is not simply their value.
__m128i SingleBytePage::MarkMapped(__m128i bytes) const noexcept
{
    __m128i const row = _mm_and_si128(bytes, _mm_set1_epi8('\xE0'));
    return m_isLatin ? _mm_cmpeq_epi8(row, _mm_set1_epi8('\x80')) : bytes;
}

/// The units whose byte is not simply their value.
unsigned SingleBytePage::FindMapped(__m128i low, __m128i high) const noexcept
{
    __m128i const ascii = _mm_set1_epi16(0x007F);
    unsigned const mapped = 0xFFFFU & ~GetZeroBits(_mm_andnot_si128(ascii, low), _mm_andnot_si128(ascii, high));
    if (mapped == 0 || !m_isLatin)
        return mapped;
    __m128i const byte = _mm_set1_epi16(0x00FF);
    unsigned const bytes = GetZeroBits(_mm_andnot_si128(byte, low), _mm_andnot_si128(byte, high));
    return mapped & ~(bytes & ~GetSignBits(MarkMapped(_mm_packus_epi16(low, high))));
}

wchar_t SingleBytePage::DecodeByte(char byte) const noexcept
{
    return static_cast<wchar_t>(m_units[static_cast<unsigned char>(byte)]);
}

char SingleBytePage::EncodeUnit(wchar_t unit)
{
    auto const value = ToUnsigned(unit);
    return value > 0xFFFFU ? '?' : static_cast<char>(m_bytes.Get(static_cast<char16_t>(value)));
}

} // namespace Vek::Platform
