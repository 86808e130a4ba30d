#pragma once

#include <Utilities/ColorBase.h>

#include <cstddef>
#include <functional>

/// ColorBase::GetHashCode.
template <class Channel>
struct std::hash<Vek::Framework::Utilities::ColorBase<Channel>>
{
    constexpr std::size_t operator()(Vek::Framework::Utilities::ColorBase<Channel> const& color) const noexcept
    {
        return static_cast<std::size_t>(color.GetHashCode());
    }
};
