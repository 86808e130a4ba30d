#include <PropertyStore/Internal/LosslessText.h>

#include <charconv>
#include <cstddef>
#include <utility>

namespace Vek::Framework::PropertyStore::Internal
{

namespace
{

// The units of the bytes 80 to 9F; 0 where Windows-1252 has none.
constexpr unsigned short c_units[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,      // 88
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178, // 98
};

bool TryEncode(unsigned long unit, char& byte)
{
    bool const isItself = (unit >= 0x20 && unit < 0x7F && unit != '\\') || (unit >= 0xA0 && unit <= 0xFF);
    unsigned long code = isItself ? unit : 0;
    for (unsigned long index = 0; code == 0 && index < 32; ++index)
        if (unit != 0 && c_units[index] == unit)
            code = 0x80 + index;
    byte = static_cast<char>(static_cast<unsigned char>(code));
    return code != 0;
}

bool TryDecode(char byte, wchar_t& unit)
{
    auto const code = static_cast<unsigned char>(byte);
    bool const isMapped = code >= 0x80 && code < 0xA0;
    unit = static_cast<wchar_t>(isMapped ? c_units[code - 0x80] : code);
    return unit != 0;
}

void AppendEscape(std::string& bytes, unsigned long unit)
{
    char digits[16];
    auto const end = std::to_chars(digits, digits + sizeof(digits), unit, 16).ptr;
    bytes.append("\\{").append(digits, end).append("}");
}

/// `at` is behind the backslash, and behind the escape afterwards.
bool TryReadEscape(std::string const& bytes, std::size_t& at, wchar_t& unit)
{
    if (at < bytes.size() && bytes[at] == '\\')
    {
        unit = L'\\';
        ++at;
        return true;
    }
    std::size_t const end = bytes.find('}', at);
    if (end == std::string::npos || bytes[at] != '{')
        return false;
    unsigned long value = 0;
    auto const [parsed, error] = std::from_chars(bytes.data() + at + 1, bytes.data() + end, value, 16);
    if (error != std::errc() || parsed != bytes.data() + end || value > 0xFFFF)
        return false;
    unit = static_cast<wchar_t>(value);
    at = end + 1;
    return true;
}

} // namespace

std::string ToLosslessBytes(std::wstring const& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        auto const unit = static_cast<unsigned long>(text[index]) & 0xFFFFFFFFU;
        bool const isOuterBlank = unit == ' ' && (index == 0 || index + 1 == text.size());
        char byte = 0;
        if (unit == '\\')
            bytes.append("\\\\");
        else if (!isOuterBlank && TryEncode(unit, byte))
            bytes += byte;
        else
            AppendEscape(bytes, unit);
    }
    return bytes;
}

bool TryFromLosslessBytes(std::string const& bytes, std::wstring& text)
{
    std::wstring read;
    read.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();)
    {
        char const byte = bytes[at++];
        wchar_t unit = 0;
        if (byte == '\\' ? !TryReadEscape(bytes, at, unit) : !TryDecode(byte, unit))
            return false;
        read += unit;
    }
    text = std::move(read);
    return true;
}

} // namespace Vek::Framework::PropertyStore::Internal
