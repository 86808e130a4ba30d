#pragma once

#include <Platform/LazyPages.h>

#include <array>
#include <emmintrin.h>
#include <string>

namespace Vek::Platform
{

/// A code page with ASCII below 0x80 and one byte for every character, both ways by table.
class SingleBytePage
{
public:
    using Units = std::array<char16_t, 256>;
    using Bytes = LazyPages<unsigned char>;

    /// `units` holds the unit of each byte, `encode` fills in the bytes of 256 units, '?' for those without one.
    constexpr SingleBytePage(Units const& units, Bytes::Fill encode, Bytes::Storage& storage) noexcept
        : m_units(units),
          m_bytes(encode, storage),
          m_isLatin(HasLatinUpperRows(units))
    {
    }

    std::wstring Decode(std::string const& text) const;

    /// A surrogate pair is two units and so becomes two bytes; a unit above 0xFFFF becomes '?'.
    std::string Encode(std::wstring const& text);

private:
    /// 0xA0 to 0xFF as in Latin-1: then only 0x80 to 0x9F need the table.
    static constexpr bool HasLatinUpperRows(Units const& units) noexcept
    {
        for (unsigned byte = 0xA0; byte < units.size(); ++byte)
        {
            if (units[byte] != byte)
                return false;
        }
        return true;
    }

    void DecodeMapped(std::string const& text, std::size_t at, std::size_t end, std::wstring& result) const noexcept;
    __m128i MarkMapped(__m128i bytes) const noexcept;
    unsigned FindMapped(__m128i low, __m128i high) const noexcept;
    wchar_t DecodeByte(char byte) const noexcept;
    char EncodeUnit(wchar_t unit);

    Units m_units;
    Bytes m_bytes;
    bool m_isLatin;
};

} // namespace Vek::Platform
