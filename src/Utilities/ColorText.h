#pragma once

#include <Utilities/ColorConversion.h>
#include <VekApi.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// L"#RRGGBB" for an opaque colour, L"#AARRGGBB" for another, with capital digits, whatever the order of the channels.
VEK_API std::wstring FormatColor(ColorBase<BGRAChannel> const& color);

template <class Channel>
std::wstring FormatColor(ColorBase<Channel> const& color)
{
    return FormatColor(ConvertColor<BGRAChannel>(color));
}

/// Reads both forms, with digits of either case and nothing around them.
///
/// `position` is the first unit that does not belong where it stands, from 0, or the length of a text that ends too
/// early; also that length on success. `color` is unchanged on failure.
VEK_API bool TryParseColor(std::wstring_view text, ColorBase<BGRAChannel>& color, std::size_t& position) noexcept;

template <class Channel>
bool TryParseColor(std::wstring_view text, ColorBase<Channel>& color, std::size_t& position) noexcept
{
    ColorBase<BGRAChannel> read;
    if (!TryParseColor(text, read, position))
        return false;
    color = ConvertColor<Channel>(read);
    return true;
}

} // namespace Vek::Framework::Utilities
