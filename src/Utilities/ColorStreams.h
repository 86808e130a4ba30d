#pragma once

#include <Utilities/ColorConversion.h>
#include <VekApi.h>

#include <iosfwd>

namespace Vek::Framework::Utilities
{

/// Writes as FormatColor does. Inserted as a text: width, fill, left and right count, other flags do not.
VEK_API std::ostream& operator<<(std::ostream& stream, ColorBase<BGRAChannel> const& color);
VEK_API std::wostream& operator<<(std::wostream& stream, ColorBase<BGRAChannel> const& color);

template <class Channel>
std::ostream& operator<<(std::ostream& stream, ColorBase<Channel> const& color)
{
    return stream << ConvertColor<BGRAChannel>(color);
}

template <class Channel>
std::wostream& operator<<(std::wostream& stream, ColorBase<Channel> const& color)
{
    return stream << ConvertColor<BGRAChannel>(color);
}

} // namespace Vek::Framework::Utilities
