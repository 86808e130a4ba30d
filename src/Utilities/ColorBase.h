#pragma once

#include <Exceptions/EnumOutOfRangeException.h>

namespace Vek::Framework::Utilities
{

/// Red in the lowest byte: the order of Win32's colour values, with alpha on top.
enum class RGBChannel : int
{
    Red = 0,
    Green = 1,
    Blue = 2,
    Alpha = 3,
};

/// Blue in the lowest byte: the order of 32-bit device-independent bitmaps.
enum class BGRAChannel : int
{
    Blue = 0,
    Green = 1,
    Red = 2,
    Alpha = 3,
};

/// A colour of four bytes in a 32-bit word; `Channel` names the byte of each, from the lowest on. A plain value.
///
/// Alpha is the top byte: 0 is transparent, 255 opaque. Colour channels are not multiplied by it.
/// Errors: a channel that the enumeration does not name throws EnumOutOfRangeException.
/// Used with RGBChannel and BGRAChannel; ColorConversion.h goes from one to the other.
template <class Channel>
class ColorBase
{
public:
    /// The word 0: black and transparent.
    constexpr ColorBase() noexcept = default;

    /// Nothing is checked: each argument is shifted to its place and or-ed in as an unsigned number, so one above 255
    /// spills into the bytes above, and a negative one into all of them.
    constexpr ColorBase(int red, int green, int blue, int alpha) noexcept
        : m_word(Place(Channel::Red, red) | Place(Channel::Green, green) | Place(Channel::Blue, blue) |
                 Place(Channel::Alpha, alpha))
    {
    }

    constexpr unsigned char Get(Channel channel) const
    {
        return static_cast<unsigned char>(m_word >> GetChannelShift(channel) & c_byte_mask);
    }

    constexpr void Set(Channel channel, unsigned char value)
    {
        int const shift = GetChannelShift(channel);
        m_word = (m_word & ~(c_byte_mask << shift)) | static_cast<unsigned int>(value) << shift;
    }

    /// Whether alpha is not 0: also a hardly visible colour is visible.
    constexpr bool IsVisible() const noexcept { return Get(Channel::Alpha) != 0; }
    constexpr bool IsInvisible() const noexcept { return !IsVisible(); }

    /// The same word. Transparent colours differ when their colour channels do.
    friend constexpr bool operator==(ColorBase const& a, ColorBase const& b) noexcept = default;

    /// The 64-bit FNV-1a hash of the word's bytes, the lowest first (Fowler, Noll and Vo). The same on every platform
    /// and in every release; the same colour has another hash in another order of channels.
    constexpr unsigned long long GetHashCode() const noexcept
    {
        unsigned long long hash = 0xCBF29CE484222325;
        for (unsigned int rest = m_word, byte = 0; byte != 4; rest >>= c_channel_shift, ++byte)
            hash = (hash ^ (rest & c_byte_mask)) * 0x100000001B3;
        return hash;
    }

    /// Red, green and blue each become (channel + amount) mod 255, a negative amount counting as its 32-bit two's
    /// complement; alpha stays. The modulus is 255, not 256, and has to stay: white shifted by 0 is black, as stored
    /// colours were made with it.
    constexpr ColorBase GetShifted(int amount) const noexcept
    {
        ColorBase shifted = *this;
        for (Channel const channel : { Channel::Red, Channel::Green, Channel::Blue })
            shifted.Set(channel, static_cast<unsigned char>((Get(channel) + static_cast<unsigned int>(amount)) % 255));
        return shifted;
    }

    /// `over` laid on this colour with over's alpha: 255 covers it, 0 leaves red, green and blue as they are. The
    /// result has this colour's alpha. Each channel is cut off, not rounded.
    constexpr ColorBase GetCombined(ColorBase const& over) const noexcept
    {
        ColorBase combined = *this;
        for (Channel const channel : { Channel::Red, Channel::Green, Channel::Blue })
            combined.Set(channel, AddBaseColor(Get(channel), over.Get(channel), over.Get(Channel::Alpha)));
        return combined;
    }

private:
    static constexpr unsigned int c_byte_mask = 255;
    static constexpr int c_channel_shift = 8;

    static constexpr int GetChannelShift(Channel channel)
    {
        if (channel < Channel{} || channel > Channel::Alpha)
            throw EnumOutOfRangeException();
        return c_channel_shift * static_cast<int>(channel);
    }

    static constexpr unsigned int Place(Channel channel, int value)
    {
        return static_cast<unsigned int>(value) << GetChannelShift(channel);
    }

    static constexpr unsigned char AddBaseColor(unsigned char base, unsigned char added, unsigned char alpha) noexcept
    {
        return static_cast<unsigned char>(((255 - alpha) * base + added * alpha) / 255);
    }

    unsigned int m_word = 0;
};

} // namespace Vek::Framework::Utilities
