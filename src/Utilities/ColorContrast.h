#pragma once

#include <Utilities/ColorBase.h>

#include <array>

namespace Vek::Framework::Utilities
{

/// How bright people see the colour, from 0 for black to 1 for white. Alpha does not count.
/// Source: the relative luminance of WCAG 2 (W3C), for colours in sRGB.
template <class Channel>
constexpr double GetLuminance(ColorBase<Channel> const& color) noexcept;

/// From 1 for colours that cannot be told apart to 21 for black and white; 4.5 is what the W3C asks for ordinary text.
/// Neither alpha counts.
template <class Channel>
constexpr double GetContrast(ColorBase<Channel> const& a, ColorBase<Channel> const& b) noexcept;

/// Black or white, opaque, whichever has the greater contrast to the background and so reads better on it: at
/// least 4.5. A background that lets something through has to be combined with it first (GetCombined).
template <class Channel>
constexpr ColorBase<Channel> GetReadableColor(ColorBase<Channel> const& background) noexcept;

// Private: not meant for hosts.
namespace Internal
{

/// By Newton's steps, as the library's power function is none for constants. For values from 0.0005 to 1.
constexpr double GetFifthRoot(double value) noexcept
{
    double root = 1;
    for (int step = 0; step != 20; ++step)
        root = (4 * root + value / (root * root * root * root)) / 5;
    return root;
}

/// The light that each byte of sRGB stands for: (c + 0.055) / 1.055 to the power of 2.4 above the darkest ones.
constexpr std::array<double, 256> MakeLight() noexcept
{
    std::array<double, 256> light{};
    for (int i = 0; i != 256; ++i)
    {
        double const share = i / 255.0;
        double const base = (share + 0.055) / 1.055;
        light[static_cast<unsigned int>(i)] =
            share <= 0.04045 ? share / 12.92 : base * base * GetFifthRoot(base * base);
    }
    return light;
}

inline constexpr std::array<double, 256> c_light = MakeLight();

} // namespace Internal

template <class Channel>
constexpr double GetLuminance(ColorBase<Channel> const& color) noexcept
{
    return 0.2126 * Internal::c_light[color.Get(Channel::Red)] + 0.7152 * Internal::c_light[color.Get(Channel::Green)] +
           0.0722 * Internal::c_light[color.Get(Channel::Blue)];
}

template <class Channel>
constexpr double GetContrast(ColorBase<Channel> const& a, ColorBase<Channel> const& b) noexcept
{
    double const first = GetLuminance(a) + 0.05;
    double const second = GetLuminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

template <class Channel>
constexpr ColorBase<Channel> GetReadableColor(ColorBase<Channel> const& background) noexcept
{
    ColorBase<Channel> const black(0, 0, 0, 255);
    ColorBase<Channel> const white(255, 255, 255, 255);
    return GetContrast(background, black) >= GetContrast(background, white) ? black : white;
}

} // namespace Vek::Framework::Utilities
