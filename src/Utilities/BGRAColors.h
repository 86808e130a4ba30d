#pragma once

#include <Utilities/ColorBase.h>

namespace Vek::Framework::Utilities
{

/// Named colours in the order of BGRAChannel; they live as long as the program.
class BGRAColors
{
public:
    BGRAColors() = delete;

    static constexpr ColorBase<BGRAChannel> const& White() noexcept { return c_white; }
    /// Opaque black.
    static constexpr ColorBase<BGRAChannel> const& Black() noexcept { return c_black; }
    /// The word 0.
    static constexpr ColorBase<BGRAChannel> const& Transparent() noexcept { return c_transparent; }

private:
    static constexpr ColorBase<BGRAChannel> c_white{ 255, 255, 255, 255 };
    static constexpr ColorBase<BGRAChannel> c_black{ 0, 0, 0, 255 };
    static constexpr ColorBase<BGRAChannel> c_transparent{};
};

} // namespace Vek::Framework::Utilities
