#include "Chart.h"

#include <Utilities/IntRectangleSets.h>

#include <algorithm>
#include <array>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

constexpr IntSize c_pictureSize(640, 400);
constexpr int c_margin = 24;
constexpr int c_gridLines = 10;

constexpr std::array<Color, 6> c_colors = {
    Color(0, 84, 166, 255),  Color(0, 140, 120, 255),  Color(230, 150, 0, 255),
    Color(200, 50, 40, 255), Color(110, 70, 150, 255), Color(90, 100, 110, 255)
};
constexpr Color c_gridColor(0, 0, 0, 32);
constexpr Color c_shadowColor(0, 0, 0, 64);

constexpr IntRectangle c_plot = IntRectangle::FromCornerPoints(
    c_margin, c_margin, c_pictureSize.GetWidth() - 1 - c_margin, c_pictureSize.GetHeight() - 1 - c_margin);

void PaintGrid(Canvas& canvas)
{
    for (int line = 0; line < c_gridLines; ++line)
    {
        int const y = c_plot.GetTopY() + c_plot.GetHeight() * line / c_gridLines;
        canvas.Fill(IntRectangle::FromCornerPoints(c_plot.GetLeftX(), y, c_plot.GetRightX(), y), c_gridColor);
    }
    IntRectangle const axis =
        IntRectangle::FromCornerPoints(c_plot.GetLeftX(), c_plot.GetBottomY(), c_plot.GetRightX(), c_plot.GetBottomY());
    canvas.Fill(Inflate(axis, 0, 1), BGRAColors::Black());
}

void PaintBar(Canvas& canvas, IntRectangle const& bar, Color const& color)
{
    canvas.Fill(Offset(bar, IntPoint(5, 0)), c_shadowColor);
    canvas.Fill(bar, color);
    canvas.Frame(bar, color.GetCombined(c_shadowColor));
}

/// The place of a bar: the middle half of its share of the width.
IntRectangle GetBar(std::size_t bar, std::size_t count, int height)
{
    auto const share = c_plot.GetWidth() / static_cast<int>(count);
    int const left = c_plot.GetLeftX() + share * static_cast<int>(bar) + share / 4;
    return IntRectangle::FromCornerPoints(left, c_plot.GetBottomY() - 2 - height, left + share / 2,
                                          c_plot.GetBottomY() - 2);
}

} // namespace

Color GetBarColor(std::size_t bar)
{
    return c_colors[bar % c_colors.size()];
}

Canvas PaintBars(std::vector<long long> const& values)
{
    Canvas canvas(c_pictureSize, BGRAColors::White());
    PaintGrid(canvas);
    double const highest = values.empty() ? 0 : static_cast<double>(*std::max_element(values.begin(), values.end()));
    for (std::size_t bar = 0; bar < values.size(); ++bar)
    {
        double const part = highest > 0 ? static_cast<double>(values[bar]) / highest : 0;
        int const height = static_cast<int>(part * (c_plot.GetHeight() - 2));
        PaintBar(canvas, GetBar(bar, values.size(), height), GetBarColor(bar));
    }
    return canvas;
}

} // namespace Example
