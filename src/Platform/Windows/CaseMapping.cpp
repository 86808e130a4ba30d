#include <Platform/CaseMapping.h>
#include <Platform/FoldedSearch.h>

#include <Platform/Windows/WindowsHeader.h>

#include <shlwapi.h>

namespace Vek::Platform
{

namespace
{

void MapPage(char16_t first, CasePage& page, wchar_t const* language, DWORD mapping, char16_t (*mapLatin)(char16_t))
{
    constexpr int size = static_cast<int>(LazyPages<char16_t>::c_pageSize);
    wchar_t units[size];
    wchar_t mapped[size];
    for (int offset = 0; offset < size; ++offset)
        units[offset] = static_cast<wchar_t>(first + offset);
    int const count = LCMapStringEx(language, mapping, units, size, mapped, size, nullptr, nullptr, 0);
    for (std::size_t offset = 0; offset < page.size(); ++offset)
        page[offset] =
            count == size ? static_cast<char16_t>(mapped[offset]) : mapLatin(static_cast<char16_t>(units[offset]));
}

/// Printable ASCII and its white space. The other controls weigh nothing in some versions of Windows.
bool IsPlain(wchar_t const* text)
{
    for (; *text != L'\0'; ++text)
    {
        if ((*text < L' ' || *text > L'~') && (*text < L'\t' || *text > L'\r'))
            return false;
    }
    return true;
}

bool ComparesLetterByLetter(LCID locale)
{
    WORD const language = PRIMARYLANGID(LANGIDFROMLCID(locale));
    return language == LANG_GERMAN || language == LANG_ENGLISH;
}

/// The system's search compares stretches of the same size by language. Those of plain ASCII are equal when their
/// letters are, unless the language has letters of more than one unit, such as the Danish "aa".
bool CanSearchByLetters(wchar_t const* text, wchar_t const* part)
{
    return ComparesLetterByLetter(GetThreadLocale()) && ComparesLetterByLetter(GetUserDefaultLCID()) && IsPlain(part) &&
           IsPlain(text);
}

} // namespace

void MapToGermanLowerCase(char16_t first, CasePage& page)
{
    MapPage(first, page, L"de-DE", LCMAP_LOWERCASE, ToLatinLowerCase);
}

void MapToUserLowerCase(char16_t first, CasePage& page)
{
    MapPage(first, page, LOCALE_NAME_USER_DEFAULT, LCMAP_LOWERCASE, ToLatinLowerCase);
}

void MapToUserUpperCase(char16_t first, CasePage& page)
{
    MapPage(first, page, LOCALE_NAME_USER_DEFAULT, LCMAP_UPPERCASE, ToLatinUpperCase);
}

bool IsFoundIgnoringCase(std::wstring const& text, std::wstring const& part)
{
    // The system's way takes time that is the product of the sizes.
    if (CanSearchByLetters(text.c_str(), part.c_str()))
        return IsFoundFolded(text.c_str(), part.c_str(),
                             [](wchar_t unit)
                             { return static_cast<wchar_t>(ToLatinLowerCase(static_cast<char16_t>(unit))); });
    return StrStrIW(text.c_str(), part.c_str()) != nullptr;
}

} // namespace Vek::Platform
