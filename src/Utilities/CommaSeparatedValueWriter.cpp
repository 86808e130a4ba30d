#include <Utilities/CommaSeparatedValueWriter.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/SeparatorFinder.h>

namespace Vek::Framework::Utilities
{

namespace
{

/// Appends all runs but the last, whose beginning it answers, each with the backslash that the unit behind it needs.
/// `stop` is the first such unit. Cold, so that a value without one, the usual, has little to do.
VEK_COLD wchar_t const* AppendEscaped(SeparatorFinder const& finder, wchar_t const* at, wchar_t const* stop,
                                      wchar_t const* end, std::wstring& result)
{
    for (; stop != end; stop = finder.Find(at + 1))
    {
        result.append(at, static_cast<std::size_t>(stop - at));
        result += L'\\';
        at = stop; // goes out with the run behind it
    }
    return at;
}

} // namespace

CommaSeparatedValueWriter::CommaSeparatedValueWriter() : CommaSeparatedValueWriter(L';')
{
}

CommaSeparatedValueWriter::CommaSeparatedValueWriter(wchar_t separator) : m_separator(separator)
{
}

CommaSeparatedValueWriter::CommaSeparatedValueWriter(CommaSeparatedValueWriter const& other) = default;
CommaSeparatedValueWriter::CommaSeparatedValueWriter(CommaSeparatedValueWriter&& other) noexcept = default;
CommaSeparatedValueWriter& CommaSeparatedValueWriter::operator=(CommaSeparatedValueWriter const& other) = default;
CommaSeparatedValueWriter& CommaSeparatedValueWriter::operator=(CommaSeparatedValueWriter&& other) noexcept = default;
CommaSeparatedValueWriter::~CommaSeparatedValueWriter() = default;

void CommaSeparatedValueWriter::AddValue(std::wstring const& value)
{
    if (&value == &m_result)
        return AddValue(std::wstring(value));
    constexpr std::size_t c_usualSize = 128;
    if (m_result.empty())
        m_result.reserve(c_usualSize); // instead of growing value by value

    SeparatorFinder const finder(value, m_separator);
    wchar_t const* at = value.data();
    wchar_t const* const end = at + value.size();
    if (wchar_t const* const stop = finder.Find(at); stop != end)
        at = AppendEscaped(finder, at, stop, end, m_result);
    // The last run goes out with its terminator, which becomes the separator.
    m_result.append(at, static_cast<std::size_t>(end - at) + 1);
    m_result.back() = m_separator;
}

std::wstring const& CommaSeparatedValueWriter::GetResult() const noexcept
{
    return m_result;
}

void CommaSeparatedValueWriter::Clear() noexcept
{
    m_result.clear();
}

} // namespace Vek::Framework::Utilities
