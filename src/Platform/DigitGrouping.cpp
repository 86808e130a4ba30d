#include <Platform/DigitGrouping.h>
#include <Platform/Windows1252.h>

namespace Vek::Platform
{

char EncodeSeparator(char32_t character) noexcept
{
    if (character == U'\u202F')
        return '\xA0';
    if (character == 0 || character > 0xFFFF)
        return '\0';
    char const byte = GetWindows1252().Encode(std::wstring(1, static_cast<wchar_t>(character)))[0];
    return byte == '?' ? '\0' : byte; // what the page has not
}

} // namespace Vek::Platform
