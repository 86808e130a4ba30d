#include <Utilities/GeometryStreams.h>

#include <Utilities/IntRangeText.h>

#include <algorithm>
#include <ostream>

namespace Vek::Framework::Utilities
{

namespace
{

std::wstring ToText(IntPoint const& point)
{
    return L"(" + std::to_wstring(point.GetX()) + L", " + std::to_wstring(point.GetY()) + L")";
}

std::wstring ToText(IntSize const& size)
{
    return std::to_wstring(size.GetWidth()) + L" x " + std::to_wstring(size.GetHeight());
}

std::wstring ToText(IntRectangle const& rectangle)
{
    return ToText(rectangle.GetTopLeft()) + L"-" + ToText(rectangle.GetBottomRight());
}

std::wstring ToText(IntRange const& range)
{
    return FormatRange(range);
}

template <class T>
std::ostream& Write(std::ostream& stream, T const& value)
{
    std::wstring const wide = ToText(value);
    std::string narrow(wide.size(), ' ');
    std::transform(wide.begin(), wide.end(), narrow.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
    return stream << narrow;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, IntPoint const& point)
{
    return Write(stream, point);
}

std::ostream& operator<<(std::ostream& stream, IntSize const& size)
{
    return Write(stream, size);
}

std::ostream& operator<<(std::ostream& stream, IntRectangle const& rectangle)
{
    return Write(stream, rectangle);
}

std::ostream& operator<<(std::ostream& stream, IntRange const& range)
{
    return Write(stream, range);
}

std::wostream& operator<<(std::wostream& stream, IntPoint const& point)
{
    return stream << ToText(point);
}

std::wostream& operator<<(std::wostream& stream, IntSize const& size)
{
    return stream << ToText(size);
}

std::wostream& operator<<(std::wostream& stream, IntRectangle const& rectangle)
{
    return stream << ToText(rectangle);
}

std::wostream& operator<<(std::wostream& stream, IntRange const& range)
{
    return stream << ToText(range);
}

} // namespace Vek::Framework::Utilities
