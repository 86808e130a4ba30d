#pragma once

#include <Utilities/ColorBase.h>

namespace Vek::Framework::Utilities
{

/// Named colours in the order of RGBChannel; they live as long as the program.
class RGBColors
{
public:
    RGBColors() = delete;

    static constexpr ColorBase<RGBChannel> const& White() noexcept { return c_white; }
    /// Opaque black.
    static constexpr ColorBase<RGBChannel> const& Black() noexcept { return c_black; }
    /// The word 0.
    static constexpr ColorBase<RGBChannel> const& Transparent() noexcept { return c_transparent; }

private:
    static constexpr ColorBase<RGBChannel> c_white{ 255, 255, 255, 255 };
    static constexpr ColorBase<RGBChannel> c_black{ 0, 0, 0, 255 };
    static constexpr ColorBase<RGBChannel> c_transparent{};
};

} // namespace Vek::Framework::Utilities
