#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace Vek::Platform
{

/// A value for a function-local static that lives until the library is unloaded: whoever runs last may still use it,
/// and nothing is registered to run at the end. So it is only for values that own no memory.
template <class T>
class NeverDestroyed
{
public:
    template <class... Arguments>
    explicit NeverDestroyed(Arguments&&... arguments)
    {
        new (m_storage) T(std::forward<Arguments>(arguments)...);
    }

    NeverDestroyed(NeverDestroyed const&) = delete;
    NeverDestroyed& operator=(NeverDestroyed const&) = delete;

    T const& Get() const noexcept { return *std::launder(reinterpret_cast<T const*>(m_storage)); }

private:
    alignas(T) std::byte m_storage[sizeof(T)];
};

} // namespace Vek::Platform
