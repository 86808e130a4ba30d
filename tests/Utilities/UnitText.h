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

inline void AppendUtf8(std::string& text, unsigned character)
{
    unsigned const trails = character < 0x80 ? 0 : character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    unsigned const leads[] = { 0x00, 0xC0, 0xE0, 0xF0 };
    text.push_back(static_cast<char>(leads[trails] | character >> 6 * trails));
    for (unsigned left = trails; left-- != 0;)
        text.push_back(static_cast<char>(0x80 | (character >> 6 * left & 0x3F)));
}
