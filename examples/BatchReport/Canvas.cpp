#include "Canvas.h"

#include <Utilities/IntRectangleSets.h>

#include <string>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

void AppendNumber(std::string& bytes, unsigned value, int size)
{
    for (int byte = 0; byte < size; ++byte)
        bytes += static_cast<char>(value >> 8 * byte & 0xFFU);
}

/// The file header of 14 bytes and the information header of 40, as Windows defines them.
std::string MakeHeaders(IntSize const& size, unsigned rowSize)
{
    unsigned const imageSize = rowSize * static_cast<unsigned>(size.GetHeight());
    std::string headers = "BM";
    AppendNumber(headers, 54 + imageSize, 4);
    AppendNumber(headers, 0, 4);
    AppendNumber(headers, 54, 4);
    AppendNumber(headers, 40, 4);
    AppendNumber(headers, static_cast<unsigned>(size.GetWidth()), 4);
    AppendNumber(headers, static_cast<unsigned>(size.GetHeight()), 4); // positive: the lowest row comes first
    AppendNumber(headers, 1, 2);
    AppendNumber(headers, 24, 2);
    AppendNumber(headers, 0, 4); // not compressed
    AppendNumber(headers, imageSize, 4);
    AppendNumber(headers, 3780, 4); // points a metre: 96 an inch
    AppendNumber(headers, 3780, 4);
    AppendNumber(headers, 0, 4); // no table of colours
    AppendNumber(headers, 0, 4);
    return headers;
}

} // namespace

Canvas::Canvas(IntSize const& size, Color const& background)
    : m_size(size),
      m_points(static_cast<std::size_t>(size.GetWidth()) * static_cast<std::size_t>(size.GetHeight()), background)
{
}

void Canvas::Fill(IntRectangle const& rectangle, Color const& color)
{
    IntRectangle const picture = IntRectangle::FromCornerPoints(0, 0, m_size.GetWidth() - 1, m_size.GetHeight() - 1);
    Nullable<IntRectangle> const visible = Intersect(rectangle, picture);
    if (!visible.HasValue())
        return;
    IntRectangle const& area = visible.GetValue();
    for (int y = area.GetTopY(); y <= area.GetBottomY(); ++y)
        for (int x = area.GetLeftX(); x <= area.GetRightX(); ++x)
            At(x, y) = At(x, y).GetCombined(color);
}

void Canvas::Frame(IntRectangle const& rectangle, Color const& color)
{
    int const left = rectangle.GetLeftX();
    int const top = rectangle.GetTopY();
    int const right = rectangle.GetRightX();
    int const bottom = rectangle.GetBottomY();
    Fill(IntRectangle::FromCornerPoints(left, top, right, top), color);
    Fill(IntRectangle::FromCornerPoints(left, bottom, right, bottom), color);
    Fill(IntRectangle::FromCornerPoints(left, top + 1, left, bottom - 1), color);
    Fill(IntRectangle::FromCornerPoints(right, top + 1, right, bottom - 1), color);
}

void Canvas::WriteBitmap(std::ostream& stream) const
{
    auto const width = static_cast<std::size_t>(m_size.GetWidth());
    std::size_t const rowSize = (3 * width + 3) / 4 * 4; // filled up to whole words
    stream << MakeHeaders(m_size, static_cast<unsigned>(rowSize));
    for (std::size_t end = m_points.size(); end > 0; end -= width)
    {
        std::string row;
        for (std::size_t at = end - width; at < end; ++at)
            for (BGRAChannel const channel : { BGRAChannel::Blue, BGRAChannel::Green, BGRAChannel::Red })
                row += static_cast<char>(m_points[at].Get(channel));
        row.resize(rowSize, '\0');
        stream << row;
    }
}

Color& Canvas::At(int x, int y)
{
    return m_points[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.GetWidth()) +
                    static_cast<std::size_t>(x)];
}

} // namespace Example
