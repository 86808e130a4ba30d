#pragma once

#include <VekApi.h>

#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

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
    void Unescape();
    unsigned long long FindStop() noexcept;
    void LookAhead() noexcept;

    std::wstring_view m_text;
    wchar_t m_separator;
    bool m_isUnescaped = false;        // the current value is the reader's own,
    std::wstring_view m_part;          // else this part of the text
    unsigned long long m_position = 0; // of the next value
    unsigned long long m_seen = 0;     // where the units end that were looked at,
    unsigned long long m_block = 0;    // where the last of them begin that were looked at together,
    unsigned m_stops = 0;              // and a bit for each separator and backslash of these that is still ahead
    std::wstring m_unescaped;
};

} // namespace Vek::Framework::Utilities
