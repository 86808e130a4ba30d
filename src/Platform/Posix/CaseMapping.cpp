#include <Platform/CaseMapping.h>
#include <Platform/FoldedSearch.h>
#include <Platform/WideBlock.h>

#include <cwctype>
#include <locale.h>

namespace Vek::Platform
{

namespace
{

/// The system's case rules, for as long as a page takes to be filled. What stayed would be left behind when the library
/// is unloaded.
class CaseRules
{
public:
    CaseRules() : m_locale(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    CaseRules(CaseRules const&) = delete;
    CaseRules& operator=(CaseRules const&) = delete;
    ~CaseRules()
    {
        if (m_locale != nullptr)
            freelocale(m_locale);
    }

    /// Null where the system lacks the locale.
    locale_t Get() const { return m_locale; }

private:
    locale_t m_locale;
};

using MapCharacter = std::wint_t (*)(std::wint_t, locale_t) noexcept;

// Windows maps only pairs that lead back: U+0130 to 'i' and the Kelvin sign to 'k' are none.
void MapPage(char16_t first, CasePage& page, MapCharacter map, MapCharacter mapBack, char16_t (*mapLatin)(char16_t))
{
    CaseRules const rules;
    locale_t const locale = rules.Get();
    for (unsigned offset = 0; offset < page.size(); ++offset)
    {
        char16_t const unit = static_cast<char16_t>(first + offset);
        std::wint_t const mapped = locale == nullptr ? mapLatin(unit) : map(unit, locale);
        bool const leadsBack = mapped <= 0xFFFFU && (locale == nullptr || mapBack(mapped, locale) == unit);
        page[offset] = leadsBack ? static_cast<char16_t>(mapped) : unit;
    }
}

/// The Windows search takes more letters for the same than the case mapping does: it compares by language.
char16_t FoldForSearch(char16_t unit, locale_t locale)
{
    if (unit == 0x0130) // the dotted I is no 'i' in German
        return unit;
    if (unit == 0x03C2) // final sigma
        return 0x03C3;
    std::wint_t const folded = locale == nullptr ? ToLatinLowerCase(unit) : towlower_l(unit, locale);
    return folded <= 0xFFFFU ? static_cast<char16_t>(folded) : unit;
}

void FillSearchFolds(char16_t first, CasePage& page)
{
    CaseRules const rules;
    for (unsigned offset = 0; offset < page.size(); ++offset)
        page[offset] = FoldForSearch(static_cast<char16_t>(first + offset), rules.Get());
}

using FoldTable = LazyPages<char16_t>;
constinit FoldTable::Storage s_searchFoldPages;
constinit FoldTable s_searchFolds(FillSearchFolds, s_searchFoldPages);

wchar_t FoldForSearch(wchar_t unit)
{
    auto const value = ToUnsigned(unit);
    return value > 0xFFFFU ? unit : static_cast<wchar_t>(s_searchFolds.Get(static_cast<char16_t>(value)));
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
    return IsFoundFolded(text.c_str(), part.c_str(), [](wchar_t unit) { return FoldForSearch(unit); });
}

} // namespace Vek::Platform
