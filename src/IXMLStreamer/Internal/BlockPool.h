#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Memory for the many small parts of a description, which are made one after the other and end together: they are cut
/// from a few large pieces, the first of which lies in the pool itself. A part that ends by End leaves room for the
/// next one of its size; the memory of the others ends with the pool.
///
/// Threads: a pool and all that is made in it belong to one thread at a time.
class BlockPool
{
public:
    BlockPool() = default;
    BlockPool(BlockPool const&) = delete;
    BlockPool& operator=(BlockPool const&) = delete;
    ~BlockPool();

    /// An object in `pool`, or on the heap where that is null.
    template <class T, class... Arguments>
    static T* Make(BlockPool* pool, Arguments&&... arguments)
    {
        static_assert(alignof(T) <= c_unit);
        if (pool == nullptr)
            return new T(std::forward<Arguments>(arguments)...);
        void* const block = pool->Take(sizeof(T));
        return ::new (block) T(std::forward<Arguments>(arguments)...); // whose memory ends with the pool if it throws
    }

    /// Ends what Make has made in the same pool, which is still there.
    template <class T>
    static void End(BlockPool* pool, T* object) noexcept
    {
        if (pool == nullptr)
        {
            delete object;
            return;
        }
        static_assert(IsKept(sizeof(T)));
        object->~T();
        pool->Keep(object, sizeof(T));
    }

private:
    struct Piece;

    static constexpr std::size_t c_unit = 16;
    static constexpr std::size_t c_firstSize = 6144;
    static constexpr std::size_t c_keptSizes = 16; // multiples of the unit

    static constexpr std::size_t CountUnits(std::size_t size) { return (size + c_unit - 1) / c_unit; }
    static constexpr bool IsKept(std::size_t size) { return CountUnits(size) < c_keptSizes; }

    void* Take(std::size_t size)
    {
        if (IsKept(size) && m_kept[CountUnits(size)] != nullptr)
            return std::exchange(m_kept[CountUnits(size)], *static_cast<void**>(m_kept[CountUnits(size)]));
        std::size_t const length = CountUnits(size) * c_unit;
        if (static_cast<std::size_t>(m_end - m_at) < length)
            Grow(length);
        return std::exchange(m_at, m_at + length);
    }

    // Each block that is kept begins with a pointer to the one kept before.
    void Keep(void* block, std::size_t size) noexcept
    {
        ::new (block) void*(m_kept[CountUnits(size)]);
        m_kept[CountUnits(size)] = block;
    }

    void Grow(std::size_t size);

    void* m_kept[c_keptSizes]{};
    Piece* m_pieces = nullptr; // the last one, without the first
    std::byte* m_at = m_first;
    std::byte* m_end = m_first + c_firstSize;
    alignas(c_unit) std::byte m_first[c_firstSize];
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
