#include <Utilities/CommaSeparatedValueViewReader.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Attributes.h>
#include <Utilities/Internal/SeparatedValue.h>

namespace Vek::Framework::Utilities
{

CommaSeparatedValueViewReader::CommaSeparatedValueViewReader(std::wstring_view text, wchar_t separator) noexcept
    : m_text(text),
      m_separator(separator)
{
}

CommaSeparatedValueViewReader::CommaSeparatedValueViewReader(CommaSeparatedValueViewReader const& other) = default;
CommaSeparatedValueViewReader& CommaSeparatedValueViewReader::operator=(CommaSeparatedValueViewReader const& other) =
    default;
CommaSeparatedValueViewReader::~CommaSeparatedValueViewReader() = default;

bool CommaSeparatedValueViewReader::MoveNext()
{
    if (m_cursor.stops == 0)
        return MoveOn();
    unsigned long long const begin = m_cursor.position;
    unsigned long long const stop = GetStop(m_cursor);
    if (m_text[stop] != m_separator)
        return MoveOn();
    m_isUnescaped = false;
    m_part = std::wstring_view(m_text.data() + begin, stop - begin);
    PassStop(stop, m_cursor);
    return true;
}

/// Whatever is not as usual. A call, so that the usual value needs no room for its variables.
VEK_NOINLINE bool CommaSeparatedValueViewReader::MoveOn()
{
    if (m_cursor.stops == 0 && LookAhead(m_text, m_separator, m_cursor))
        return MoveNext();
    m_isUnescaped = m_cursor.stops != 0;
    if (m_isUnescaped)
    {
        ReadEscapedValue(m_text, m_separator, m_cursor, m_unescaped);
        return true;
    }
    return !ReadRest().empty();
}

std::wstring_view CommaSeparatedValueViewReader::GetCurrentValue() const noexcept
{
    return m_isUnescaped ? std::wstring_view(m_unescaped) : m_part;
}

std::wstring_view CommaSeparatedValueViewReader::ReadNext()
{
    if (!MoveNext())
        throw InvalidStateException();
    return GetCurrentValue();
}

std::wstring_view CommaSeparatedValueViewReader::ReadRest() noexcept
{
    m_isUnescaped = false;
    m_part = m_text.substr(m_cursor.position);
    m_cursor = { m_text.size(), m_text.size(), 0 };
    return m_part;
}

} // namespace Vek::Framework::Utilities
