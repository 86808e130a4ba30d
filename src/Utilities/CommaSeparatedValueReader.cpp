#include <Utilities/CommaSeparatedValueReader.h>

#include <Exceptions/InvalidStateException.h>
#include <Utilities/Internal/SeparatorFinder.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Vek::Framework::Utilities
{

CommaSeparatedValueReader::CommaSeparatedValueReader(std::wstring text, wchar_t separator)
    : m_text(std::move(text)),
      m_separator(separator)
{
    constexpr std::size_t c_usualSize = 64;
    m_currentValue.reserve(std::min(m_text.size(), c_usualSize)); // instead of growing value by value
}

CommaSeparatedValueReader::CommaSeparatedValueReader(CommaSeparatedValueReader const& other) = default;
CommaSeparatedValueReader::CommaSeparatedValueReader(CommaSeparatedValueReader&& other) noexcept
    : m_text(std::move(other.m_text)),
      m_separator(other.m_separator),
      m_position(std::exchange(other.m_position, 0)),
      m_currentValue(std::move(other.m_currentValue))
{
    other.m_text.clear(); // nothing is left there, whatever the move did with short texts
}
CommaSeparatedValueReader& CommaSeparatedValueReader::operator=(CommaSeparatedValueReader const& other) = default;
CommaSeparatedValueReader& CommaSeparatedValueReader::operator=(CommaSeparatedValueReader&& other) noexcept
{
    CommaSeparatedValueReader moved(std::move(other));
    m_text.swap(moved.m_text);
    m_separator = moved.m_separator;
    m_position = moved.m_position;
    m_currentValue.swap(moved.m_currentValue);
    return *this;
}
CommaSeparatedValueReader::~CommaSeparatedValueReader() = default;

bool CommaSeparatedValueReader::MoveNext()
{
    m_currentValue.clear();
    wchar_t const* at = m_text.data() + m_position;
    wchar_t const* const end = m_text.data() + m_text.size();
    if (at == end)
        return false;

    SeparatorFinder const finder(m_text, m_separator);
    for (;;)
    {
        wchar_t const* const stop = finder.Find(at);
        m_currentValue.append(at, static_cast<std::size_t>(stop - at));
        m_position = static_cast<unsigned long long>(stop - m_text.data());
        if (stop == end)
            return true;
        if (*stop == m_separator)
        {
            ++m_position;
            return true;
        }
        if (stop + 1 == end)
        {
            m_position = m_text.size();
            throw std::out_of_range("invalid string position");
        }
        m_currentValue += stop[1];
        at = stop + 2;
        if (at == end)
        {
            m_position = m_text.size();
            return true;
        }
    }
}

std::wstring const& CommaSeparatedValueReader::GetCurrentValue() const noexcept
{
    return m_currentValue;
}

std::wstring const& CommaSeparatedValueReader::ReadNext()
{
    if (!MoveNext())
        throw InvalidStateException();
    return m_currentValue;
}

std::wstring const& CommaSeparatedValueReader::ReadRest()
{
    m_currentValue.assign(m_text, m_position);
    m_position = m_text.size();
    return m_currentValue;
}

} // namespace Vek::Framework::Utilities
