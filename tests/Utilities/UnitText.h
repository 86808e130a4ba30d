#pragma once

#include <initializer_list>

/// Wide text of the given elements; literals above 0x7F would depend on the compiler's character sets.
inline std::wstring MakeText(std::initializer_list<unsigned> units)
{
    std::wstring text;
    for (unsigned const unit : units)
        text.push_back(static_cast<wchar_t>(unit));
    return text;
}

/// An element above 0xFFFF exists only where wchar_t is wider than a unit.
constexpr bool c_hasWideElements = sizeof(wchar_t) > 2;
