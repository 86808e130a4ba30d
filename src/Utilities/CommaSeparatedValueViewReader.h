#pragma once

#include <VekApi.h>

#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

// Private: not meant for hosts.
namespace Internal
{

/// How far a reader of separated values is, in units.
struct SeparatedCursor
{
    static constexpr unsigned c_reach = 64; // of one look, as many as there are bits

    unsigned long long position = 0; // of the next value
    unsigned long long ahead = 0;    // where the units begin that were not looked at,
    unsigned long long stops = 0; // and a bit for each separator and backslash in the reach before that is not passed
};

} // namespace Internal

/// Splits a line as CommaSeparatedValueReader does, but copies neither the line nor its values: they are views of the
/// text, which must stay where it is while the reader and its values are in use. Only a value with a backslash in it is
/// put together, in memory of the reader's own.
class VEK_API CommaSeparatedValueViewReader
{
public:
    CommaSeparatedValueViewReader(std::wstring_view text, wchar_t separator) noexcept;
    /// Goes on from the same place of the same text by itself.
    CommaSeparatedValueViewReader(CommaSeparatedValueViewReader const& other);
    CommaSeparatedValueViewReader& operator=(CommaSeparatedValueViewReader const& other);
    ~CommaSeparatedValueViewReader();

    /// Reads the next value; false, with an empty current value, when nothing is left.
    /// A backslash that ends the text throws std::out_of_range ("invalid string position"): the current value is what
    /// stands before it then, and nothing is left, so that the next call answers false.
    bool MoveNext();

    /// The value of the last MoveNext or ReadRest; valid until the next one, and while the reader lives.
    std::wstring_view GetCurrentValue() const noexcept;

    /// The next value. Throws InvalidStateException when nothing is left.
    std::wstring_view ReadNext();

    /// All that is left as the current value, as it stands: escapes and separators included.
    std::wstring_view ReadRest() noexcept;

private:
    VEK_LOCAL bool MoveOn();

    std::wstring_view m_text;
    wchar_t m_separator;
    bool m_isUnescaped = false; // the current value is the reader's own,
    std::wstring_view m_part;   // else this part of the text
    Internal::SeparatedCursor m_cursor;
    std::wstring m_unescaped;
};

} // namespace Vek::Framework::Utilities
