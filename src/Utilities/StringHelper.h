#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Operations on 8-bit text: search, comparison, case, replacement, white space.
///
/// Text:  bytes; lengths count bytes, embedded zero bytes are text like any other.
/// Case:  all comparisons without case and MakeLowerCase fold ASCII letters only. They pass each byte to ToLower as a
///        signed value, so that 0x80 to 0xFF come as -128 to -1 and stay: programs rely on it that an umlaut and its
///        capital are different here. ToLower itself knows the letters of Windows-1252.
/// Use:   any thread; never instantiated.
class VEK_API StringHelper
{
public:
    StringHelper() = delete;

    /// The lower-case partner of a Windows-1252 character from 0 to 255; any other value, 0x8C and 0xD7 stay.
    static int ToLower(int c) noexcept;

    /// The runtime's toupper under the current C locale. Values outside 0 to 255 stay.
    static int ToUpper(int c) noexcept;

    /// ASCII letters only.
    static void MakeLowerCase(std::string& text) noexcept;

    /// Bytes below 0x80 as in ToUpper; 0x80 to 0xFF stay.
    static void MakeUpperCase(std::string& text) noexcept;

    /// True for an empty `part`.
    static bool Contains(std::string const& text, std::string const& part);

    /// An empty `part` is in every text but the empty one.
    static bool ContainsIgnoreCase(std::string const& text, std::string const& part);

    static bool StartsWith(std::string const& text, std::string const& prefix) noexcept;
    static bool EndsWith(std::string const& text, std::string const& suffix) noexcept;
    static bool StartsWithIgnoreCase(std::string const& text, std::string const& prefix) noexcept;
    static bool EndsWithIgnoreCase(std::string const& text, std::string const& suffix) noexcept;

    /// The difference of the first folded bytes that differ, as signed values; of texts that agree so far the longer
    /// one is greater (1 or -1), 0 for equal ones. CompareIgnoreCase("b", "A") = 1, ("b", "\344") = 126.
    static int CompareIgnoreCase(std::string const& a, std::string const& b) noexcept;

    static bool EqualsIgnoreCase(std::string const& a, std::string const& b) noexcept;

    /// Replaces the first `from` by `to`, then again from the beginning of the result, until none is left: "ab" by "b"
    /// makes "aab" to "b". An empty `from` changes nothing.
    /// Throws ArgumentException where that would never end, and leaves `text` as it was: when `from` occurs and `to`
    /// contains it, and when the text feeds on itself ("ab" by "bbaa" in "aab"), which shows when it has grown by more
    /// than 16,777,216 bytes beyond one `to` for each byte.
    static void ReplaceAll(std::string& text, std::string const& from, std::string const& to);

    /// Removes space, tab, line feed, vertical tab, form feed and carriage return; the no-break space stays.
    static void RemoveAllWhitespaces(std::string& text) noexcept;

    /// True when every byte is a digit, so also for the empty text. A minus sign is never accepted, whatever
    /// `allowNegative` says: unlike the wide-text counterpart, and kept for the programs that rely on it.
    static bool IsInteger(std::string const& text, bool allowNegative) noexcept;

    /// An empty text, and the one byte 0xA0. Both stay as long as the process.
    static std::string const& Empty();
    static std::string const& NonBreakingSpace();
};

} // namespace Vek::Framework::Utilities
