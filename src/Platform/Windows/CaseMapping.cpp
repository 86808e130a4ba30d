#include <Platform/CaseMapping.h>

#include <Platform/Windows/WindowsHeader.h>

#include <shlwapi.h>

namespace Vek::Platform
{

void MapToGermanLowerCase(char16_t first, CasePage& page)
{
    constexpr int size = static_cast<int>(LazyPages<char16_t>::c_pageSize);
    wchar_t units[size];
    wchar_t lower[size];
    for (int offset = 0; offset < size; ++offset)
        units[offset] = static_cast<wchar_t>(first + offset);
    int const count = LCMapStringEx(L"de-DE", LCMAP_LOWERCASE, units, size, lower, size, nullptr, nullptr, 0);
    for (std::size_t offset = 0; offset < page.size(); ++offset)
        page[offset] = count == size ? static_cast<char16_t>(lower[offset])
                                     : ToLatinLowerCase(static_cast<char16_t>(units[offset]));
}

bool IsFoundIgnoringCase(std::wstring const& text, std::wstring const& part)
{
    return StrStrIW(text.c_str(), part.c_str()) != nullptr;
}

} // namespace Vek::Platform
