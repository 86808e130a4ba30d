#include <IParser/Internal/SourceBuffer.h>

#include <algorithm>
#include <cstring>
#include <exception>

namespace Vek::Framework::IParser::Native::Internal
{

namespace
{

// Most documents are small, and a large block costs more to get than they do to read. Each that is filled makes the
// next one larger.
constexpr std::size_t c_firstBlockSize = 0x4000;
constexpr std::size_t c_growth = 8;
constexpr std::size_t c_lastBlockSize = 0x100000;
constexpr std::size_t c_carrySize = 0x1000; // beside the block: the token that straddles two blocks

} // namespace

SourceBuffer::SourceBuffer(std::string_view text)
    : m_begin(text.data()),
      m_end(m_begin + text.size()),
      m_capacityEnd(m_end),
      m_isAtEnd(true)
{
}

SourceBuffer::SourceBuffer(std::istream& stream, Reading reading)
    : m_stream(&stream),
      m_chunk(reading == Reading::ByBlock ? c_firstBlockSize : 1)
{
    std::size_t const capacity = (reading == Reading::ByBlock ? c_firstBlockSize : 0) + c_carrySize;
    m_memory = std::make_unique_for_overwrite<char[]>(capacity);
    m_begin = m_end = m_memory.get();
    m_capacityEnd = m_begin + capacity;
}

char const* SourceBuffer::MoveToFront(char const* keep)
{
    std::size_t const kept = static_cast<std::size_t>(m_end - keep);
    std::size_t const capacity = static_cast<std::size_t>(m_capacityEnd - m_begin);
    if (capacity - kept < m_chunk)
    {
        std::size_t const grown = 2 * kept + m_chunk + c_carrySize;
        auto memory = std::make_unique_for_overwrite<char[]>(grown);
        std::memcpy(memory.get(), keep, kept);
        m_memory = std::move(memory);
        m_capacityEnd = m_memory.get() + grown;
    }
    else
        std::memmove(m_memory.get(), keep, kept);
    m_begin = m_memory.get();
    m_end = m_begin + kept;
    return m_begin;
}

bool SourceBuffer::ReadOn()
{
    std::size_t const count = m_isAtEnd || !m_stream->good() ? 0 : ReadChunk();
    m_end += count;
    if (count == m_chunk && count > 1)
        m_chunk = std::min(count * c_growth, c_lastBlockSize);
    if (count == 0 && !m_isAtEnd)
    {
        m_isAtEnd = true;
        if (m_stream->good())
            m_stream->setstate(std::ios_base::eofbit);
    }
    return count != 0;
}

// What an unformatted read does: it flushes a tied output first; a stream buffer that throws makes the stream bad, and
// the exception goes on if the host asked for that. So does the unwinding of a cancelled thread, which is no exception
// that one could hold and which no handler may end.
std::size_t SourceBuffer::ReadChunk()
{
    std::istream::sentry const ready(*m_stream, true);
    if (!ready)
        return 0;
    char* const target = m_memory.get() + (m_end - m_begin);
    try
    {
        return static_cast<std::size_t>(m_stream->rdbuf()->sgetn(target, static_cast<std::streamsize>(m_chunk)));
    }
    catch (...)
    {
        m_isAtEnd = true;
        SetBad();
        if ((m_stream->exceptions() & std::ios_base::badbit) != 0 || std::current_exception() == nullptr)
            throw;
        return 0;
    }
}

void SourceBuffer::SetBad()
{
    try
    {
        m_stream->setstate(std::ios_base::badbit);
    }
    catch (std::ios_base::failure const&)
    {
        // The bit is set; what the host is to see is the stream buffer's own exception.
    }
}

} // namespace Vek::Framework::IParser::Native::Internal
