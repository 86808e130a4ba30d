#pragma once

#include <Platform/LazyPages.h>

#include <string>

namespace Vek::Platform
{

using CasePage = LazyPages<char16_t>::Page;

/// The lower-case partners of the units `first` to `first` + 255 by German rules; a unit without one stands for itself.
/// Maps unit by unit, so surrogates never change. The answer is the same on every platform.
void MapToGermanLowerCase(char16_t first, CasePage& page);

/// The same by the rules of the user's language, which are those of Unicode where the system has no such language.
void MapToUserLowerCase(char16_t first, CasePage& page);
void MapToUserUpperCase(char16_t first, CasePage& page);

/// True when the system's search, which ignores case, finds `part` in `text`, both up to their first 0 unit.
/// False when either is empty. Only the case of letters is alike on all platforms.
bool IsFoundIgnoringCase(std::wstring const& text, std::wstring const& part);

/// The lower-case partner of a Latin-1 letter: the rule where the system has none.
constexpr char16_t ToLatinLowerCase(char16_t unit) noexcept
{
    bool const isUpper = (unit >= u'A' && unit <= u'Z') || (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7);
    return isUpper ? static_cast<char16_t>(unit + 32) : unit;
}

constexpr char16_t ToLatinUpperCase(char16_t unit) noexcept
{
    bool const isLower = (unit >= u'a' && unit <= u'z') || (unit >= 0xE0 && unit <= 0xFE && unit != 0xF7);
    return isLower ? static_cast<char16_t>(unit - 32) : unit;
}

} // namespace Vek::Platform
