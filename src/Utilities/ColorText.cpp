#include <Utilities/ColorText.h>

#include <Utilities/ColorStreams.h>

#include <algorithm>
#include <ostream>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::size_t c_opaqueSize = 7; // #RRGGBB
constexpr std::size_t c_size = 9;       // #AARRGGBB

/// 16 for what is no digit.
unsigned int GetDigit(wchar_t unit) noexcept
{
    if (unit >= L'0' && unit <= L'9')
        return static_cast<unsigned int>(unit - L'0');
    if (unit >= L'A' && unit <= L'F')
        return static_cast<unsigned int>(unit - L'A' + 10);
    return unit >= L'a' && unit <= L'f' ? static_cast<unsigned int>(unit - L'a' + 10) : 16;
}

template <class Unit>
std::basic_string<Unit> Format(ColorBase<BGRAChannel> const& color)
{
    std::basic_string<Unit> text(1, Unit('#'));
    for (BGRAChannel const channel : { BGRAChannel::Alpha, BGRAChannel::Red, BGRAChannel::Green, BGRAChannel::Blue })
    {
        unsigned int const value = color.Get(channel);
        if (channel == BGRAChannel::Alpha && value == 255)
            continue;
        text += static_cast<Unit>("0123456789ABCDEF"[value >> 4]);
        text += static_cast<Unit>("0123456789ABCDEF"[value & 15]);
    }
    return text;
}

} // namespace

std::wstring FormatColor(ColorBase<BGRAChannel> const& color)
{
    return Format<wchar_t>(color);
}

bool TryParseColor(std::wstring_view text, ColorBase<BGRAChannel>& color, std::size_t& position) noexcept
{
    std::size_t at = 0;
    unsigned int word = 0;
    for (; at != std::min(text.size(), c_size); ++at)
    {
        unsigned int const digit = GetDigit(text[at]);
        if (at == 0 ? text[at] != L'#' : digit == 16)
            break;
        word = at == 0 ? 0 : word << 4 | digit;
    }
    position = at;
    if (at != text.size() || (at != c_opaqueSize && at != c_size))
        return false;
    int const alpha = at == c_opaqueSize ? 255 : static_cast<int>(word >> 24);
    color = { static_cast<int>(word >> 16 & 255), static_cast<int>(word >> 8 & 255), static_cast<int>(word & 255),
              alpha };
    return true;
}

std::ostream& operator<<(std::ostream& stream, ColorBase<BGRAChannel> const& color)
{
    return stream << Format<char>(color);
}

std::wostream& operator<<(std::wostream& stream, ColorBase<BGRAChannel> const& color)
{
    return stream << Format<wchar_t>(color);
}

} // namespace Vek::Framework::Utilities
