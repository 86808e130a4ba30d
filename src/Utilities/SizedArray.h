#pragma once

#include <VekApi.h>

#include <concepts>
#include <memory>
#include <type_traits>

namespace Vek::Framework::Utilities
{

/// A block of elements with its count, handed out by the file, stream and Base64 helpers.
///
/// Shape:  one heap block, owned; neither copied nor moved: pass it on through std::unique_ptr or std::shared_ptr.
/// Sizes:  elements, not bytes. The reported size may be lowered, never raised; the block stays as it was allocated.
/// Errors: a size that cannot be allocated, or whose bytes cannot be counted, throws std::bad_alloc.
/// The library holds and exports the instances for unsigned char and wchar_t.
template <class T>
class VEK_TEMPLATE_API SizedArray
{
    static_assert(std::is_trivial_v<T>, "the elements are not initialised");

public:
    /// `size` elements that are not initialised: read none before writing it.
    explicit SizedArray(unsigned long long size);

    /// The first min(size, source.GetSize()) bytes of `source`; the rest is not initialised.
    SizedArray(unsigned long long size, SizedArray const& source) requires std::same_as<T, unsigned char>;

    SizedArray(SizedArray const&) = delete;
    SizedArray& operator=(SizedArray const&) = delete;
    ~SizedArray();

    /// The block, valid as long as the array; never null, also for no elements.
    T* GetData() noexcept;
    T const* GetData() const noexcept;

    /// The reported size.
    unsigned long long GetSize() const noexcept;

    /// `index` is not checked.
    T& GetAt(unsigned long long index) noexcept;
    T const& GetAt(unsigned long long index) const noexcept;
    T& operator[](unsigned long long index) noexcept;
    T const& operator[](unsigned long long index) const noexcept;

    /// For a read that filled less than was allocated; nothing is freed.
    /// Throws ArgumentException for more than the reported size, which then stays.
    void SetReportedSize(unsigned long long size);

private:
    std::unique_ptr<T[]> m_data;
    unsigned long long m_size;
};

// Short enough for a host's compiler to see through; not inline, or the library would not export them.

template <class T>
T* SizedArray<T>::GetData() noexcept
{
    return m_data.get();
}

template <class T>
T const* SizedArray<T>::GetData() const noexcept
{
    return m_data.get();
}

template <class T>
unsigned long long SizedArray<T>::GetSize() const noexcept
{
    return m_size;
}

template <class T>
T& SizedArray<T>::GetAt(unsigned long long index) noexcept
{
    return m_data.get()[index];
}

template <class T>
T const& SizedArray<T>::GetAt(unsigned long long index) const noexcept
{
    return m_data.get()[index];
}

template <class T>
T& SizedArray<T>::operator[](unsigned long long index) noexcept
{
    return m_data.get()[index];
}

template <class T>
T const& SizedArray<T>::operator[](unsigned long long index) const noexcept
{
    return m_data.get()[index];
}

#if !defined(VEK_BUILDING_LIBRARY)
extern template class VEK_API SizedArray<unsigned char>;
extern template class VEK_API SizedArray<wchar_t>;
#endif

} // namespace Vek::Framework::Utilities
