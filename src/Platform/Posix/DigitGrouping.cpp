#include <Platform/DigitGrouping.h>

#include <climits>
#include <cstdint>
#include <langinfo.h>
#include <locale.h>

namespace Vek::Platform
{

namespace
{

/// The separator as a character, whatever the locale's encoding: this item is a word in the place of a pointer.
char32_t GetSeparator(locale_t locale)
{
    auto const word = reinterpret_cast<std::uintptr_t>(nl_langinfo_l(_NL_NUMERIC_THOUSANDS_SEP_WC, locale));
    return static_cast<char32_t>(word);
}

/// CHAR_MAX and what is below 1 end the grouping.
std::string GetSizes(locale_t locale)
{
    std::string sizes;
    for (char const* size = nl_langinfo_l(GROUPING, locale); *size != '\0'; ++size)
    {
        bool const isEnd = *size < 1 || *size == CHAR_MAX;
        sizes += isEnd ? '\0' : *size;
        if (isEnd)
            break;
    }
    return sizes;
}

} // namespace

DigitGrouping GetUserDigitGrouping()
{
    locale_t const locale = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (locale == nullptr)
        return {};
    DigitGrouping grouping{ GetSizes(locale), EncodeSeparator(GetSeparator(locale)) };
    freelocale(locale);
    return grouping;
}

} // namespace Vek::Platform
