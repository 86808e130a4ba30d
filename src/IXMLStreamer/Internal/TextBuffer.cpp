#include <IXMLStreamer/Internal/TextBuffer.h>

#include <algorithm>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

void TextBuffer::Grow(std::size_t size)
{
    constexpr std::size_t c_least = 256;
    m_memory.resize(std::max({ m_size + size, 2 * m_memory.size(), c_least }));
}

void TextBuffer::Release()
{
    std::string().swap(m_memory);
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
