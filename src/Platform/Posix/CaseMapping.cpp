#include <Platform/CaseMapping.h>
#include <Platform/SubstringMatcher.h>
#include <Platform/WideBlock.h>

#include <cwctype>
#include <locale.h>

namespace Vek::Platform
{

namespace
{

/// Null where the system lacks the locale. Never freed: mappings may be asked for as long as the process runs.
locale_t GetLocale()
{
    static locale_t const s_locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return s_locale;
}

using MapCharacter = std::wint_t (*)(std::wint_t, locale_t) noexcept;

// Windows maps only pairs that lead back: U+0130 to 'i' and the Kelvin sign to 'k' are none.
void MapPage(char16_t first, CasePage& page, MapCharacter map, MapCharacter mapBack, char16_t (*mapLatin)(char16_t))
{
    locale_t const locale = GetLocale();
    for (unsigned offset = 0; offset < page.size(); ++offset)
    {
        char16_t const unit = static_cast<char16_t>(first + offset);
        std::wint_t const mapped = locale == nullptr ? mapLatin(unit) : map(unit, locale);
        bool const leadsBack = mapped <= 0xFFFFU && (locale == nullptr || mapBack(mapped, locale) == unit);
        page[offset] = leadsBack ? static_cast<char16_t>(mapped) : unit;
    }
}

/// The Windows search takes more letters for the same than the case mapping does: it compares by language.
wchar_t FoldForSearch(wchar_t unit)
{
    locale_t const locale = GetLocale();
    auto const value = ToUnsigned(unit);
    if (value > 0xFFFFU || value == 0x0130) // the dotted I is no 'i' in German
        return unit;
    if (value == 0x03C2) // final sigma
        return static_cast<wchar_t>(0x03C3);
    if (locale == nullptr)
        return static_cast<wchar_t>(ToLatinLowerCase(static_cast<char16_t>(value)));
    return static_cast<wchar_t>(towlower_l(value, locale));
}

} // namespace

void MapToGermanLowerCase(char16_t first, CasePage& page)
{
    MapPage(first, page, towlower_l, towupper_l, ToLatinLowerCase);
}

void MapToUserLowerCase(char16_t first, CasePage& page)
{
    MapPage(first, page, towlower_l, towupper_l, ToLatinLowerCase);
}

void MapToUserUpperCase(char16_t first, CasePage& page)
{
    MapPage(first, page, towupper_l, towlower_l, ToLatinUpperCase);
}

bool IsFoundIgnoringCase(std::wstring const& text, std::wstring const& part)
{
    std::wstring pattern;
    for (wchar_t const* unit = part.c_str(); *unit != L'\0'; ++unit)
        pattern.push_back(FoldForSearch(*unit));
    if (pattern.empty())
        return false;
    SubstringMatcher<wchar_t> matcher(pattern);
    for (wchar_t const* unit = text.c_str(); *unit != L'\0'; ++unit)
    {
        if (matcher.Feed(FoldForSearch(*unit)))
            return true;
    }
    return false;
}

} // namespace Vek::Platform
