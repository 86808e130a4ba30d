#pragma once

#include <Platform/Attributes.h>

#include <array>
#include <atomic>
#include <cstddef>

namespace Vek::Platform
{

/// A table over units, filled in pages of 256 when a page is first asked for.
///
/// Made for objects of static storage, the constructor is constexpr. The pages lie in an object of their own, which
/// is all zero at first: so it takes no room in the library's file, and nothing has to be freed when that is unloaded.
/// Any thread may ask; one that finds a page being filled by another works the value out for itself.
template <typename Value, std::size_t PageCount = 256>
class LazyPages
{
public:
    static constexpr std::size_t c_pageSize = 256;
    using Page = std::array<Value, c_pageSize>;

    /// Fills in the values of the units `first` to `first` + 255.
    using Fill = void (*)(char16_t first, Page& page);

    enum class State : unsigned char
    {
        Empty = 0,
        Filling,
        Ready,
    };

    struct Storage
    {
        std::array<Page, PageCount> pages{};
        std::array<std::atomic<State>, PageCount> states{};
    };

    constexpr LazyPages(Fill fill, Storage& storage) noexcept : m_fill(fill), m_storage(storage) {}

    /// For units of the pages that there are. `fill` may throw; then the page is asked for again the next time.
    Value Get(char16_t unit)
    {
        std::size_t const index = unit >> 8U;
        bool const isReady = m_storage.states[index].load(std::memory_order_acquire) == State::Ready;
        return isReady ? m_storage.pages[index][unit & 0xFFU] : MakePage(index, unit & 0xFFU);
    }

private:
    // Cold, so that it is not inlined: a look-up must stay a few instructions.
    VEK_COLD Value MakePage(std::size_t index, std::size_t offset)
    {
        Page page{};
        m_fill(static_cast<char16_t>(index * c_pageSize), page);
        State state = State::Empty;
        if (m_storage.states[index].compare_exchange_strong(state, State::Filling, std::memory_order_relaxed))
        {
            m_storage.pages[index] = page;
            m_storage.states[index].store(State::Ready, std::memory_order_release);
        }
        return page[offset];
    }

    Fill m_fill;
    Storage& m_storage;
};

} // namespace Vek::Platform
