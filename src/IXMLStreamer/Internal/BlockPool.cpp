#include <IXMLStreamer/Internal/BlockPool.h>

#include <algorithm>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

struct BlockPool::Piece
{
    Piece* previous;
    std::size_t size; // without this head
};

BlockPool::~BlockPool()
{
    while (m_pieces != nullptr)
        ::operator delete(std::exchange(m_pieces, m_pieces->previous));
}

// What is left of the last piece is lost.
void BlockPool::Grow(std::size_t size)
{
    static_assert(sizeof(Piece) % c_unit == 0);
    constexpr std::size_t c_mostDoubled = 65536;
    std::size_t const last = m_pieces == nullptr ? c_firstSize : m_pieces->size;
    std::size_t const next = std::max(size, last < c_mostDoubled ? 2 * last : last);
    m_pieces = ::new (::operator new(sizeof(Piece) + next)) Piece{ m_pieces, next };
    m_at = reinterpret_cast<std::byte*>(m_pieces + 1);
    m_end = m_at + next;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
