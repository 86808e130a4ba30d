#include <Utilities/CommaSeparatedValueViewReader.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Attributes.h>
#include <Utilities/Internal/SeparatedValue.h>
#include <Utilities/Internal/SeparatorFinder.h>

#include <algorithm>
#include <bit>

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
    m_isUnescaped = false;
    unsigned long long const begin = m_position;
    unsigned long long const stop = FindStop();
    m_part = std::wstring_view(m_text.data() + begin, stop - begin);
    if (stop == m_text.size())
    {
        m_position = stop;
        return begin != stop;
    }
    if (m_text[stop] == m_separator)
        m_position = stop + 1;
    else
        Unescape();
    return true;
}

/// Reads the next value, which has a backslash.
VEK_COLD void CommaSeparatedValueViewReader::Unescape()
{
    constexpr std::size_t c_usualSize = 64;
    m_isUnescaped = true;
    m_unescaped.clear();
    m_unescaped.reserve(std::min(m_text.size(), c_usualSize)); // instead of growing run by run
    m_stops = 0;
    m_seen = m_text.size(); // stays so when this throws
    AppendSeparatedValue(m_text, m_separator, m_position, m_unescaped);
    m_seen = m_position;
}

/// The position of the next separator or backslash, or the end of the text.
unsigned long long CommaSeparatedValueViewReader::FindStop() noexcept
{
    while (m_stops == 0)
    {
        if (m_seen == m_text.size())
            return m_seen;
        LookAhead();
    }
    unsigned long long const stop = m_block + static_cast<unsigned>(std::countr_zero(m_stops));
    m_stops &= m_stops - 1;
    return stop;
}

/// Looks at the next sixteen units together, since values are short. A call, so that the other values need no room for
/// its variables.
VEK_NOINLINE void CommaSeparatedValueViewReader::LookAhead() noexcept
{
    constexpr std::size_t c_blockSize = 16;
    if (m_text.size() < c_blockSize || Platform::ToUnsigned(m_separator) >= 0x7FFF)
    {
        m_block = m_seen;
        m_seen = std::min<unsigned long long>(m_block + c_blockSize, m_text.size());
        for (unsigned long long at = m_block; at != m_seen; ++at)
            m_stops |= (m_text[at] == m_separator || m_text[at] == L'\\' ? 1U : 0U) << (at - m_block);
        return;
    }
    // The last block begins among the units that were seen.
    m_block = std::min<unsigned long long>(m_seen, m_text.size() - c_blockSize);
    wchar_t const* const units = m_text.data() + m_block;
    __m128i const low = MarkSeparators(units, m_separator);
    __m128i const high = MarkSeparators(units + c_blockSize / 2, m_separator);
    m_stops = Platform::GetSignBits(_mm_packs_epi16(low, high)) & (~0U << (m_seen - m_block));
    m_seen = m_block + c_blockSize;
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
    m_part = m_text.substr(m_position);
    m_position = m_text.size();
    m_seen = m_position;
    m_stops = 0;
    return m_part;
}

} // namespace Vek::Framework::Utilities
