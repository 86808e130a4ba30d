#include <PropertyStore/Internal/LosslessText.h>

#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <utility>

namespace Vek::Framework::PropertyStore::Internal
{

using Utilities::WStringHelper;

namespace
{

bool IsControl(wchar_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

void AppendEscape(std::string& bytes, wchar_t unit)
{
    char digits[16];
    auto const end = std::to_chars(digits, digits + sizeof(digits), static_cast<unsigned int>(unit), 16).ptr;
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
    unsigned int value = 0;
    auto const [parsed, error] = std::from_chars(bytes.data() + at + 1, bytes.data() + end, value, 16);
    if (error != std::errc() || parsed != bytes.data() + end || value > 0xFFFF)
        return false;
    unit = static_cast<wchar_t>(value);
    at = end + 1;
    return true;
}

} // namespace

bool TryToLosslessBytes(std::wstring const& text, std::string& bytes)
{
    std::string written;
    std::string byte;
    unsigned long long position = 0;
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        wchar_t const unit = text[index];
        if (static_cast<wchar_t>(static_cast<char16_t>(unit)) != unit)
            return false;
        bool const isOuterBlank = unit == L' ' && (index == 0 || index + 1 == text.size());
        if (unit == L'\\')
            written.append("\\\\");
        else if (!isOuterBlank && !IsControl(unit) &&
                 WStringHelper::TryGetWindows1252FromUTF16(std::wstring(1, unit), byte, position))
            written.append(byte);
        else
            AppendEscape(written, unit);
    }
    bytes = std::move(written);
    return true;
}

bool TryFromLosslessBytes(std::string const& bytes, std::wstring& text)
{
    std::wstring read;
    for (std::size_t at = 0; at < bytes.size();)
    {
        std::size_t const end = std::min(bytes.find('\\', at), bytes.size());
        read.append(WStringHelper::GetUTF16FromWindows1252(bytes.substr(at, end - at)));
        wchar_t unit = 0;
        at = end + 1;
        if (end == bytes.size())
            break;
        if (!TryReadEscape(bytes, at, unit))
            return false;
        read += unit;
    }
    text = std::move(read);
    return true;
}

} // namespace Vek::Framework::PropertyStore::Internal
