#include <Platform/Windows1252.h>

namespace Vek::Platform
{

namespace
{

// The rows 0x80 and 0x90 of Windows-1252 (Unicode consortium, CP1252.TXT). The five bytes without a character
// stand for the C1 code of the same value, as Windows converts them.
constexpr char16_t c_c1Rows[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

constexpr SingleBytePage::Units MakeUnits()
{
    SingleBytePage::Units units{};
    for (unsigned byte = 0; byte < units.size(); ++byte)
        units[byte] = byte >= 0x80 && byte < 0xA0 ? c_c1Rows[byte - 0x80] : static_cast<char16_t>(byte);
    return units;
}

constexpr SingleBytePage::Units c_units = MakeUnits();

void EncodeUnits(char16_t first, SingleBytePage::Bytes::Page& bytes)
{
    bytes.fill('?');
    for (unsigned byte = 0; byte < c_units.size(); ++byte)
    {
        if (c_units[byte] >> 8U == first >> 8U)
            bytes[c_units[byte] & 0xFFU] = static_cast<unsigned char>(byte);
    }
}

constinit SingleBytePage::Bytes::Storage s_bytes;
constinit SingleBytePage s_page(c_units, EncodeUnits, s_bytes);

} // namespace

SingleBytePage& GetWindows1252() noexcept
{
    return s_page;
}

} // namespace Vek::Platform
