#pragma once

#include <Utilities/CodePoint.h>
#include <Utilities/Nullable.h>
#include <VekApi.h>

#include <string>
#include <vector>

namespace Vek::Framework::Utilities
{

/// Operations on wide text: conversion to and from 8-bit text, code points, search and comparison, case, replacement,
/// numbers.
///
/// Text:  UTF-16, one code unit in each wchar_t on every platform, also where wchar_t has 32 bits: a character above
///        U+FFFF is two elements. Lengths and positions count units. Texts are not validated unless said otherwise.
///        An element above 0xFFFF is no unit: UTF-8 refuses it, no code page holds it, it equals only itself.
/// Case:  the lower-case partners of German, unit by unit and the same on every platform: an umlaut equals
///        its capital, sharp s and "ss" are not equal, surrogates have no case.
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

    /// The same without an exception: false leaves `result` as it was and sets `errorPosition` to the first byte of the
    /// sequence that is malformed; all before it is well formed.
    static bool TryGetUTF16FromUTF8(std::string const& text, std::wstring& result, unsigned long long& errorPosition);

    /// A lone surrogate or an element above 0xFFFF throws std::range_error ("bad conversion").
    static std::string GetUTF8FromUTF16(std::wstring const& text);

    /// From the system's ANSI code page; elsewhere than on Windows that is Windows-1252, whose five undefined bytes
    /// stand for the C1 code of the same value. Throws ArgumentException for more than 2,147,483,647 bytes.
    static std::wstring GetWStringFromCurrentCodepage(std::string const& text);

    /// The reverse. What the code page cannot hold becomes '?' (Windows first tries its best fit); a surrogate pair
    /// gives two of them. Throws ArgumentException for more than 2,147,483,647 units.
    static std::string GetCurrentCodepageString(std::wstring const& text);

    /// Windows-1252, the same on every system, whatever its code page; its five undefined bytes stand for the C1 code
    /// of the same value. What it cannot hold becomes '?', without a best fit; a surrogate pair gives two of them.
    static std::wstring GetUTF16FromWindows1252(std::string const& text);
    static std::string GetWindows1252FromUTF16(std::wstring const& text);

    /// For text of which nothing may be lost: false leaves `result` as it was and sets `errorPosition` to the first
    /// unit that Windows-1252 does not have.
    static bool TryGetWindows1252FromUTF16(std::wstring const& text, std::string& result,
                                           unsigned long long& errorPosition);

    /// Drops the byte order mark, U+FEFF, that the text begins with, in the second form written as UTF-8; only the
    /// first one. True when there was one.
    static bool RemoveByteOrderMark(std::wstring& text);
    static bool RemoveByteOrderMark(std::string& text);

    /// For text known to be plain ASCII: no code page is asked. Two oddities are kept for the data written with them:
    /// the byte 0x7F becomes '~', and 0x80 to 0xFF become the units 0xFF80 to 0xFFFF.
    static std::wstring GetWStringFromAsciiOnly(std::string const& text);

    /// EqualsIgnoreCase of `a` and of `b` converted from the ANSI code page.
    static bool EqualsIgnoreCaseWithCurrentCodePage(std::wstring const& a, std::string const& b);

    /// @}
    /// @name Code points
    /// Counted by units that are no high surrogates: each of them ends a code point.
    /// @{

    /// True for a high surrogate: the next unit belongs to the same code point.
    static bool IsNextCodeUnitConnected(wchar_t unit) noexcept;
    /// True for a low surrogate.
    static bool IsPreviousCodeUnitConnected(wchar_t unit) noexcept;

    /// A pair counts once, a lone high surrogate not at all, a lone low one once.
    static unsigned long long GetCodePointsCount(std::wstring const& text) noexcept;

    /// The number of code points that end in the `count` units from `start` on.
    /// Throws ArgumentException when these do not lie in the text.
    static unsigned long long GetCodePointDistance(std::wstring const& text, unsigned long long count,
                                                   unsigned long long start);

    /// The number of units from `start` on in which `count` code points end. Throws ArgumentException when the text
    /// ends first.
    static unsigned long long GetCodeUnitDistance(std::wstring const& text, unsigned long long count,
                                                  unsigned long long start);

    /// `length` code points from the code point `start` on. Throws ArgumentException when there are not that many, so
    /// also for negative arguments.
    static std::wstring CodePointSubString(std::wstring const& text, int start, int length);

    /// @}
    /// @name Search
    /// Unit by unit.
    /// @{

    /// True for an empty `part`. Both texts end at their first 0 unit.
    static bool Contains(std::wstring const& text, std::wstring const& part);

    static bool StartsWith(std::wstring const& text, std::wstring const& prefix);
    /// True when every unit of `codePoint` equals the first unit of `text`: never for a pair. Kept for the programs
    /// that rely on it; ask StartsWith(text, codePoint.ToString()) for pairs.
    static bool StartsWith(std::wstring const& text, CodePoint const& codePoint) noexcept;
    static bool EndsWith(std::wstring const& text, std::wstring const& suffix);

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
    /// @name Case
    /// By the rules of the user's language on Windows and of Unicode elsewhere; ASCII letters are mapped directly.
    /// Surrogates and letters whose partner does not lead back to them stay.
    /// @{

    static wchar_t ToLowerCase(wchar_t unit);
    static wchar_t ToUpperCase(wchar_t unit);
    static std::wstring ToLowerCase(std::wstring const& text);
    static void MakeLowerCase(std::wstring& text);

    /// @}
    /// @name Editing, numbers, lists
    /// @{

    /// As StringHelper::ReplaceAll, limits included.
    static void ReplaceAll(std::wstring& text, std::wstring const& from, std::wstring const& to);

    /// Digits with, as wanted, one minus sign in front and one `separator` anywhere; at least one digit.
    /// A '-' is never taken as separator.
    static bool IsNumber(std::wstring const& text, Nullable<wchar_t> separator, bool allowNegative);
    static bool IsInteger(std::wstring const& text, bool allowNegative);

    /// The decimal number in front: white space as Unicode defines it (also the no-break space), a sign, digits of
    /// ASCII up to the first unit that is none. 0 without digits; the nearest int for a value out of range.
    static int ParseInt(std::wstring const& text) noexcept;

    /// Removes the elements equal to `item`, which may lie in `list`, and answers how many there were.
    static unsigned long long RemoveFromList(std::vector<std::wstring>& list, std::wstring const& item);

    /// Two upper-case digits a byte. `data` may be null when `size` is 0, else NullPointerException is thrown; it may
    /// lie in `target`.
    static std::wstring GetHex(unsigned char const* data, unsigned int size);
    static void AppendHex(unsigned char const* data, unsigned int size, std::wstring& target);

    /// For callers that must answer a reference: an empty text, the one unit U+00A0, an empty list. They stay as long
    /// as the process.
    static std::wstring const& Empty();
    static std::wstring const& NonBreakingSpace();
    static std::vector<std::wstring> const& EmptyStringList();

    /// @}
};

} // namespace Vek::Framework::Utilities
