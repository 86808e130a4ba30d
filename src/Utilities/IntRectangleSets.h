#pragma once

#include <Utilities/IntRectangle.h>
#include <Utilities/Nullable.h>

#include <algorithm>

/// Rectangles as the sets of points that IntRectangle::Contains names, edges included on all four sides. So neighbours
/// that share an edge share its points, a rectangle of width 0 holds a column of them, and Empty() holds (0, 0).
namespace Vek::Framework::Utilities
{

/// Whether the rectangle contains any point: its corners are in order.
constexpr bool HasPoints(IntRectangle const& rectangle) noexcept
{
    return rectangle.GetLeftX() <= rectangle.GetRightX() && rectangle.GetTopY() <= rectangle.GetBottomY();
}

/// The points that both contain; no value when there is none.
constexpr Nullable<IntRectangle> Intersect(IntRectangle const& a, IntRectangle const& b) noexcept
{
    IntRectangle const shared = IntRectangle::FromCornerPoints(
        (std::max)(a.GetLeftX(), b.GetLeftX()), (std::max)(a.GetTopY(), b.GetTopY()),
        (std::min)(a.GetRightX(), b.GetRightX()), (std::min)(a.GetBottomY(), b.GetBottomY()));
    return HasPoints(shared) ? Nullable<IntRectangle>(shared) : Nullable<IntRectangle>();
}

/// The smallest rectangle around the points of both. One without points adds nothing; of two such, the answer is `a`.
constexpr IntRectangle Unite(IntRectangle const& a, IntRectangle const& b) noexcept
{
    if (!HasPoints(b))
        return a;
    if (!HasPoints(a))
        return b;
    return IntRectangle::FromCornerPoints((std::min)(a.GetLeftX(), b.GetLeftX()), (std::min)(a.GetTopY(), b.GetTopY()),
                                          (std::max)(a.GetRightX(), b.GetRightX()),
                                          (std::max)(a.GetBottomY(), b.GetBottomY()));
}

/// Each edge moved outwards, left and right ones by `horizontally`, top and bottom ones by `vertically`: the rectangle
/// is wider by twice that. A negative amount moves them inwards, perhaps past each other, and then no point is left.
constexpr IntRectangle Inflate(IntRectangle const& rectangle, int horizontally, int vertically) noexcept
{
    IntPoint const outwards(horizontally, vertically);
    return IntRectangle::FromCornerPoints(rectangle.GetTopLeft() - outwards, rectangle.GetBottomRight() + outwards);
}

/// Both corners moved by the same distance.
constexpr IntRectangle Offset(IntRectangle const& rectangle, IntPoint const& distance) noexcept
{
    return IntRectangle::FromCornerPoints(rectangle.GetTopLeft() + distance, rectangle.GetBottomRight() + distance);
}

/// The rectangle moved into the middle of `area`, as FromCenterAndSize places it; its size stays. Where the space left
/// over is odd, the larger part lies in front of an odd width and behind an even one: 5 in 0 to 10 goes from 3 to 8.
constexpr IntRectangle CenterIn(IntRectangle const& rectangle, IntRectangle const& area) noexcept
{
    return IntRectangle::FromCenterAndSize(area.GetCenter(), rectangle.GetSize());
}

} // namespace Vek::Framework::Utilities
