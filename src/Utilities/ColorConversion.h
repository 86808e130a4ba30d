#pragma once

#include <Utilities/ColorBase.h>

namespace Vek::Framework::Utilities
{

/// The same colour with its bytes in another order: ConvertColor<BGRAChannel>(color).
template <class Target, class Source>
constexpr ColorBase<Target> ConvertColor(ColorBase<Source> const& color) noexcept
{
    return { color.Get(Source::Red), color.Get(Source::Green), color.Get(Source::Blue), color.Get(Source::Alpha) };
}

/// The word 0x00BBGGRR that Win32 takes for a colour; alpha is lost.
template <class Channel>
constexpr unsigned int ToWin32Color(ColorBase<Channel> const& color) noexcept
{
    return static_cast<unsigned int>(color.Get(Channel::Blue)) << 16 |
           static_cast<unsigned int>(color.Get(Channel::Green)) << 8 | color.Get(Channel::Red);
}

/// The opaque colour of a word 0x00BBGGRR, as in FromWin32Color<RGBChannel>(word). The top byte is not looked at.
template <class Channel>
constexpr ColorBase<Channel> FromWin32Color(unsigned int word) noexcept
{
    return { static_cast<int>(word & 255), static_cast<int>(word >> 8 & 255), static_cast<int>(word >> 16 & 255), 255 };
}

} // namespace Vek::Framework::Utilities
