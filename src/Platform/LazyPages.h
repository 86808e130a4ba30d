#pragma once

#include <Platform/Attributes.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>

namespace Vek::Platform
{

/// A table over all 65,536 units, filled in pages of 256 when a page is first asked for.
///
/// Made for objects of static storage: the constructor is constexpr, the pages are never freed.
/// Any thread may ask; two that fill the same page at once get the same content, one copy is dropped.
template <typename Value>
class LazyPages
{
public:
    static constexpr std::size_t c_pageSize = 256;
    using Page = std::array<Value, c_pageSize>;

    /// Fills in the values of the units `first` to `first` + 255.
    using Fill = void (*)(char16_t first, Page& page);

    constexpr explicit LazyPages(Fill fill) noexcept : m_fill(fill) {}

    /// Throws std::bad_alloc when a new page finds no memory.
    Value Get(char16_t unit) { return GetPage(unit >> 8U)[unit & 0xFFU]; }

private:
    Page const& GetPage(std::size_t index)
    {
        Page const* const page = m_pages[index].load(std::memory_order_acquire);
        return page != nullptr ? *page : MakePage(index);
    }

    // Cold, so that it is not inlined: a look-up must stay a few instructions.
    VEK_COLD Page const& MakePage(std::size_t index)
    {
        auto fresh = std::make_unique<Page>();
        m_fill(static_cast<char16_t>(index * c_pageSize), *fresh);
        Page const* present = nullptr;
        if (m_pages[index].compare_exchange_strong(present, fresh.get(), std::memory_order_acq_rel))
            return *fresh.release();
        return *present;
    }

    Fill m_fill;
    std::array<std::atomic<Page const*>, 256> m_pages{};
};

} // namespace Vek::Platform
