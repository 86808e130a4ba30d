#include <Utilities/CommaSeparatedValueWriter.h>

#include <Utilities/Internal/SeparatorFinder.h>

namespace Vek::Framework::Utilities
{

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

    SeparatorFinder const finder(value, m_separator);
    wchar_t const* at = value.data();
    wchar_t const* const end = at + value.size();
    for (wchar_t const* stop = finder.Find(at); stop != end; stop = finder.Find(at + 1))
    {
        m_result.append(at, static_cast<std::size_t>(stop - at));
        m_result += L'\\';
        at = stop; // goes out with the run behind it
    }
    m_result.append(at, static_cast<std::size_t>(end - at));
    m_result += m_separator;
}

std::wstring const& CommaSeparatedValueWriter::GetResult() const noexcept
{
    return m_result;
}

} // namespace Vek::Framework::Utilities
