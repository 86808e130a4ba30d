#pragma once

#include <cstddef>
#include <utility>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// A function object that lives as long as anybody holds it, so that a call can outlive its registration.
///
/// Counts its holders without atomic operations: a description and its handlers belong to one thread at a time.
template <class F>
class SharedFunction
{
public:
    SharedFunction() = default;
    explicit SharedFunction(F function) : m_block(new Block{ std::move(function), 1 }) {}
    SharedFunction(SharedFunction const& other) noexcept : m_block(other.m_block)
    {
        if (m_block != nullptr)
            ++m_block->useCount;
    }
    SharedFunction(SharedFunction&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
    SharedFunction& operator=(SharedFunction other) noexcept
    {
        Swap(other);
        return *this;
    }
    ~SharedFunction()
    {
        if (m_block != nullptr && --m_block->useCount == 0)
            delete m_block;
    }

    void Swap(SharedFunction& other) noexcept { std::swap(m_block, other.m_block); }

    F const* Get() const noexcept { return m_block == nullptr ? nullptr : &m_block->function; }
    F const& operator*() const noexcept { return m_block->function; }
    explicit operator bool() const noexcept { return m_block != nullptr; }

private:
    struct Block
    {
        F function;
        std::size_t useCount;
    };

    Block* m_block = nullptr;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
