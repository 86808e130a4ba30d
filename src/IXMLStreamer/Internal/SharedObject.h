#pragma once

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
    explicit SharedObject(T&& object) : m_block(new Block{ std::move(object), 1 }) {}
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
        if (m_block != nullptr && --m_block->useCount == 0)
            delete m_block;
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
        T object;
        std::size_t useCount;
    };

    Block* m_block = nullptr;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
