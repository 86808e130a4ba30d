#include "LineReader.h"

#include "Files.h"

#include <limits>

namespace Example
{

LineReader::LineReader(std::filesystem::path path) : m_path(std::move(path)), m_stream(OpenFile(m_path))
{
}

bool LineReader::MoveNext()
{
    m_stream.getline(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    auto length = static_cast<std::size_t>(m_stream.gcount());
    if (m_stream.bad())
        throw DocumentError(FullNameOf(m_path) + " cannot be read");
    // The buffer is full before the line ends; at the end of the file, nothing at all was there.
    m_isTooLong = m_stream.fail() && length > 0;
    if (m_stream.fail() && !m_isTooLong)
        return false;
    if (m_isTooLong)
    {
        m_stream.clear();
        m_stream.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    else if (!m_stream.eof())
        --length; // gcount has counted the line feed
    m_text = { m_buffer.data(), length };
    if (m_text.ends_with('\r'))
        m_text.remove_suffix(1);
    ++m_number;
    return true;
}

} // namespace Example
