#pragma once

#include <IXMLStreamer/Internal/BlockPool.h>

#include <cstddef>
#include <utility>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// An object that lives as long as anybody holds it, so that the call of a handler can outlive its registration.
///
/// Counts its holders without atomic operations: a description and its handlers belong to one thread at a time.
template <class T>
class SharedObject
{
public:
    SharedObject() = default;
    SharedObject(SharedObject const& other) noexcept : m_block(other.m_block)
    {
        if (m_block != nullptr)
            ++m_block->useCount;
    }
    SharedObject(SharedObject&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
    SharedObject& operator=(SharedObject other) noexcept
    {
        Swap(other);
        return *this;
    }
    ~SharedObject()
    {
        if (m_block != nullptr && --m_block->useCount == 0) [[unlikely]]
            BlockPool::End(m_block->pool, m_block);
    }

    /// An object in `pool`, which then outlives all that hold it; or one of its own where that is null.
    template <class... Arguments>
    static SharedObject Make(BlockPool* pool, Arguments&&... arguments)
    {
        SharedObject made;
        made.m_block = BlockPool::Make<Block>(pool, pool, std::forward<Arguments>(arguments)...);
        return made;
    }

    void Swap(SharedObject& other) noexcept { std::swap(m_block, other.m_block); }

    T const* Get() const noexcept { return m_block == nullptr ? nullptr : &m_block->object; }
    T& operator*() noexcept { return m_block->object; }
    T const& operator*() const noexcept { return m_block->object; }
    T* operator->() noexcept { return &m_block->object; }
    T const* operator->() const noexcept { return &m_block->object; }
    explicit operator bool() const noexcept { return m_block != nullptr; }

    /// True when both are the same object, or none.
    bool operator==(SharedObject const& other) const noexcept { return m_block == other.m_block; }

private:
    struct Block
    {
        template <class... Arguments>
        explicit Block(BlockPool* owner, Arguments&&... arguments)
            : object(std::forward<Arguments>(arguments)...),
              pool(owner)
        {
        }

        T object;
        BlockPool* pool;
        std::size_t useCount = 1;
    };

    Block* m_block = nullptr;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
