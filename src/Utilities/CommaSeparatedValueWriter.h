#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Joins values into one line: a separator or a backslash within a value gets a backslash in front, and every value,
/// the last one included, is followed by the separator. There are no quotes, and line ends mean nothing.
///
/// For many lines, one writer that is cleared after each is fastest: the memory of the longest one serves them all.
class VEK_API CommaSeparatedValueWriter
{
public:
    /// Separated by ";".
    CommaSeparatedValueWriter();
    explicit CommaSeparatedValueWriter(wchar_t separator);
    CommaSeparatedValueWriter(CommaSeparatedValueWriter const& other);
    CommaSeparatedValueWriter(CommaSeparatedValueWriter&& other) noexcept;
    CommaSeparatedValueWriter& operator=(CommaSeparatedValueWriter const& other);
    CommaSeparatedValueWriter& operator=(CommaSeparatedValueWriter&& other) noexcept;
    ~CommaSeparatedValueWriter();

    /// `value` may be the result itself.
    void AddValue(std::wstring const& value);

    /// All values since the start or the last Clear; valid until the next one is added.
    std::wstring const& GetResult() const noexcept;

    /// Begins a new line with the same separator and the memory of the last one.
    void Clear() noexcept;

private:
    wchar_t m_separator;
    std::wstring m_result;
};

} // namespace Vek::Framework::Utilities
