#pragma once

#include <cstddef>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Ends a text or list that has grown large, so that one long value does not cost memory for ever.
template <class Container>
void ReleaseIfLarge(Container& container)
{
    constexpr std::size_t c_keptBytes = 65536;
    if (container.capacity() > c_keptBytes / sizeof(typename Container::value_type))
        Container().swap(container);
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
