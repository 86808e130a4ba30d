#include <Utilities/CommaSeparatedValueReader.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Attributes.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/Internal/SeparatedBlock.h>
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
      m_cursor(std::exchange(other.m_cursor, {})),
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
    m_cursor = moved.m_cursor;
    m_currentValue.swap(moved.m_currentValue);
    return *this;
}
CommaSeparatedValueReader::~CommaSeparatedValueReader() = default;

bool CommaSeparatedValueReader::MoveNext()
{
    if (m_cursor.stops == 0)
        return MoveOn();
    std::size_t const begin = m_cursor.position;
    std::size_t const stop = GetStop(m_cursor);
    std::size_t const size = stop - begin;
    std::size_t const room = std::max(size, c_unitsInBlock); // a short value takes what follows along
    if (m_text[stop] != m_separator || m_text.size() - begin < room || m_currentValue.capacity() < room)
        return MoveOn();
    auto const write = [size, room, from = m_text.data() + begin](wchar_t* units, std::size_t) noexcept
    {
        std::size_t const last = room - c_unitsInBlock; // may begin in the block before
        for (std::size_t at = 0; at < last; at += c_unitsInBlock)
            Platform::CopyUnits(from + at, units + at);
        Platform::CopyUnits(from + last, units + last);
        return size;
    };
    ResizeAndOverwrite(m_currentValue, room, write);
    PassStop(stop, m_cursor);
    return true;
}

/// Whatever is not as usual. A call, so that the usual value needs no room for its variables.
VEK_NOINLINE bool CommaSeparatedValueReader::MoveOn()
{
    if (m_cursor.stops == 0 && LookAhead(m_text, m_separator, m_cursor))
        return MoveNext();
    if (m_cursor.stops != 0)
    {
        ReadEscapedValue(m_text, m_separator, m_cursor, m_currentValue);
        return true;
    }
    return !ReadRest().empty();
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
    m_currentValue.assign(m_text, m_cursor.position);
    m_cursor = { m_text.size(), m_text.size(), 0 };
    return m_currentValue;
}

} // namespace Vek::Framework::Utilities
