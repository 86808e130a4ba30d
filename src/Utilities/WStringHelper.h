#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Operations on wide text: conversion to and from 8-bit text, comparison without case.
///
/// Text:  UTF-16, one code unit in each wchar_t on every platform, also where wchar_t has 32 bits: a character above
///        U+FFFF is two elements. Lengths and positions count units. Texts are not validated unless said otherwise.
///        An element above 0xFFFF is no unit: conversions refuse it, comparisons take it as equal only to itself.
/// Case:  the lower-case partners of German, unit by unit and the same on every platform: "Ä" and "ä" are equal,
///        "ß" and "ss" are not, surrogates have no case.
/// Zeros: the comparisons end at the first 0 unit of either text, as those of the C runtime do; what follows it is
///        not compared. The lengths are still those of the whole text.
/// Use:   any thread; never instantiated.
class VEK_API WStringHelper
{
public:
    WStringHelper() = delete;

    /// @name Conversions
    /// @{

    /// Strict: overlong forms, surrogates, values above U+10FFFF and truncated sequences throw std::range_error
    /// ("bad conversion"). A byte order mark is a character like any other.
    static std::wstring GetUTF16FromUTF8(std::string const& text);

    /// A lone surrogate or an element above 0xFFFF throws std::range_error ("bad conversion").
    static std::string GetUTF8FromUTF16(std::wstring const& text);

    /// From the system's ANSI code page; elsewhere than on Windows that is Windows-1252, whose five undefined bytes
    /// stand for the C1 code of the same value. Throws ArgumentException for more than 2,147,483,647 bytes.
    static std::wstring GetWStringFromCurrentCodepage(std::string const& text);

    /// The reverse. What the code page cannot hold becomes '?' (Windows first tries its best fit); a surrogate pair
    /// gives two of them. Throws ArgumentException for more than 2,147,483,647 units.
    static std::string GetCurrentCodepageString(std::wstring const& text);

    /// For text known to be plain ASCII: no code page is asked. Two oddities are kept for the data written with them:
    /// the byte 0x7F becomes '~', and 0x80 to 0xFF become the units 0xFF80 to 0xFFFF.
    static std::wstring GetWStringFromAsciiOnly(std::string const& text);

    /// EqualsIgnoreCase of `a` and of `b` converted from the ANSI code page.
    static bool EqualsIgnoreCaseWithCurrentCodePage(std::wstring const& a, std::string const& b);

    /// @}
    /// @name Comparison without case
    /// @{

    /// True for an empty `part`; else the system's own search, which ends at the first 0 unit of each text and finds
    /// nothing for a `part` that begins with one. Only the case of letters is alike on every platform: by language,
    /// Windows takes some more signs for the same.
    static bool ContainsIgnoreCase(std::wstring const& text, std::wstring const& part);

    static bool StartsWithIgnoreCase(std::wstring const& text, std::wstring const& prefix);
    static bool EndsWithIgnoreCase(std::wstring const& text, std::wstring const& suffix);

    /// False for texts of different length.
    static bool EqualsIgnoreCase(std::wstring const& a, std::wstring const& b);

    /// Negative, 0 or positive as `a` sorts before, with or after `b`, in the order of the lower-case units as unsigned
    /// numbers: no dictionary order. A proper beginning of the other text sorts first.
    static int CompareIgnoreCase(std::wstring const& a, std::wstring const& b);

    /// @}
};

} // namespace Vek::Framework::Utilities
