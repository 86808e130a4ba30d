#include <Utilities/CommaSeparatedValueReader.h>

#include <Exceptions/InvalidStateException.h>
#include <Utilities/Internal/SeparatedValue.h>

#include <algorithm>
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
    if (m_position == m_text.size())
        return false;
    AppendSeparatedValue(m_text, m_separator, m_position, m_currentValue);
    return true;
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
