#pragma once

#include <Utilities/CommaSeparatedValueViewReader.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Splits a line as CommaSeparatedValueWriter makes it: every value ends with the separator, a backslash takes the next
/// unit as it is. A last value without a separator counts as well; a separator at the end begins no further value.
///
/// There are no quotes: a quotation mark is a character like any other, so that "a;b" in quotes is two values. Lines of
/// spreadsheet programs, which quote, are another format; a caller who may get one must look for quotation marks.
class VEK_API CommaSeparatedValueReader
{
public:
    CommaSeparatedValueReader(std::wstring text, wchar_t separator);
    CommaSeparatedValueReader(CommaSeparatedValueReader const& other);
    CommaSeparatedValueReader(CommaSeparatedValueReader&& other) noexcept;
    CommaSeparatedValueReader& operator=(CommaSeparatedValueReader const& other);
    CommaSeparatedValueReader& operator=(CommaSeparatedValueReader&& other) noexcept;
    ~CommaSeparatedValueReader();

    /// Reads the next value; false, with an empty current value, when nothing is left.
    /// A backslash that ends the text throws std::out_of_range ("invalid string position"): the current value is what
    /// stands before it then, and nothing is left, so that the next call answers false.
    bool MoveNext();

    /// The value of the last MoveNext or ReadRest; valid until the next one.
    std::wstring const& GetCurrentValue() const noexcept;

    /// The next value. Throws InvalidStateException when nothing is left.
    std::wstring const& ReadNext();

    /// All that is left as the current value, as it stands: escapes and separators included.
    std::wstring const& ReadRest();

private:
    VEK_LOCAL bool MoveOn();

    std::wstring m_text;
    wchar_t m_separator;
    Internal::SeparatedCursor m_cursor;
    std::wstring m_currentValue;
};

} // namespace Vek::Framework::Utilities
