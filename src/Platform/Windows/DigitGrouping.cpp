#include <Platform/DigitGrouping.h>

#include <Platform/Windows/WindowsHeader.h>

#include <string_view>

namespace Vek::Platform
{

namespace
{

/// At most what the system documents for both items: ten units with the final 0.
std::wstring GetUserSetting(LCTYPE item)
{
    wchar_t text[10] = {};
    int const size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, item, text, static_cast<int>(std::size(text)));
    return std::wstring(text, size > 0 ? static_cast<std::size_t>(size - 1) : 0);
}

/// "3;0" is groups of three, "3;2;0" three and then twos; without the 0 at the end only the groups named.
std::string ParseSizes(std::wstring_view text)
{
    std::string sizes;
    for (wchar_t const unit : text)
    {
        if (unit > L'0' && unit <= L'9')
            sizes += static_cast<char>(unit - L'0');
    }
    if (!text.ends_with(L";0"))
        sizes += '\0';
    return sizes;
}

} // namespace

DigitGrouping GetUserDigitGrouping()
{
    std::wstring const separator = GetUserSetting(LOCALE_STHOUSAND);
    // A separator of several units would need several bytes.
    bool const isOne = separator.size() == 1;
    return { ParseSizes(GetUserSetting(LOCALE_SGROUPING)), isOne ? EncodeSeparator(separator[0]) : '\0' };
}

} // namespace Vek::Platform
