#pragma once

#include <cstdint>

namespace Vek::Framework::Utilities
{

constexpr bool IsHighSurrogate(std::uint32_t unit) noexcept
{
    return (unit & ~0x3FFU) == 0xD800;
}

constexpr bool IsLowSurrogate(std::uint32_t unit) noexcept
{
    return (unit & ~0x3FFU) == 0xDC00;
}

} // namespace Vek::Framework::Utilities
