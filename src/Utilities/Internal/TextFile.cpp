#include <Utilities/Internal/TextFile.h>

#include <Exceptions/InvalidStateException.h>

#include <algorithm>
#include <optional>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::size_t c_blockSize = 65536;
constexpr char c_endOfText = '\x1A';

/// Removes each return before a line feed within the range; answers the new end.
char* RemoveReturns(char* begin, char const* end) noexcept
{
    char* target = std::find(begin, const_cast<char*>(end), '\r');
    for (char const* at = target; at != end; ++at)
    {
        bool const isLineEnd = *at == '\r' && at + 1 != end && at[1] == '\n';
        if (!isLineEnd)
            *target++ = *at;
    }
    return target;
}

} // namespace

TextFile::TextFile(std::wstring const& path)
    : m_file(path),
      m_block(std::make_unique_for_overwrite<char[]>(1 + c_blockSize))
{
    if (!m_file.GetSize())
        throw InvalidStateException();
}

std::string_view TextFile::Peek()
{
    while (m_text.empty() && !m_isLast)
        ReadBlock();
    return m_text;
}

void TextFile::ReadBlock()
{
    char* const begin = m_block.get();
    std::size_t const kept = m_hasReturn ? 1 : 0;
    begin[0] = '\r';
    std::optional<unsigned long long> const read = m_file.Read(begin + kept, c_blockSize);
    if (!read)
        throw InvalidStateException();
    char* const readEnd = begin + kept + *read;
    char* end = std::find(begin, readEnd, c_endOfText);
    m_isLast = end != readEnd || *read < c_blockSize;
    m_hasReturn = !m_isLast && end[-1] == '\r';
    if (m_hasReturn)
        --end;
    m_text = std::string_view(begin, static_cast<std::size_t>(RemoveReturns(begin, end) - begin));
}

} // namespace Vek::Framework::Utilities
