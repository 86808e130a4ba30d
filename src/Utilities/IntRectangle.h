#pragma once

#include <Utilities/IntSize.h>

namespace Vek::Framework::Utilities
{

/// An upright rectangle in whole pixels, kept as its two corners exactly as given: nothing puts them in order, so width
/// and height may be negative. A plain value. Arithmetic wraps around.
///
/// Width and height are differences of coordinates, while Contains counts the edges on all four sides: a rectangle from
/// 10 to 40 is 30 wide and contains 31 columns, one of width 0 contains one. Kept on purpose: sizes are those of the
/// window system, whose right and bottom edges lie outside, and a click on the edge counts.
class IntRectangle
{
public:
    /// All coordinates 0.
    constexpr IntRectangle() noexcept = default;

    static constexpr IntRectangle FromCornerPoints(IntPoint const& topLeft, IntPoint const& bottomRight) noexcept
    {
        return { topLeft, bottomRight };
    }

    static constexpr IntRectangle FromCornerPoints(int left, int top, int right, int bottom) noexcept
    {
        return { { left, top }, { right, bottom } };
    }

    static constexpr IntRectangle FromPointAndSize(int x, int y, int width, int height) noexcept
    {
        return FromPointAndSize({ x, y }, { width, height });
    }

    static constexpr IntRectangle FromPointAndSize(IntPoint const& topLeft, IntSize const& size) noexcept
    {
        return { topLeft, topLeft + size.ToVector() };
    }

    /// An odd size puts the extra pixel on the right and at the bottom: width 5 around x 10 goes from 8 to 13.
    static constexpr IntRectangle FromCenterAndSize(IntPoint const& center, IntSize const& size) noexcept
    {
        return FromPointAndSize(center - IntPoint(size.GetWidth() / 2, size.GetHeight() / 2), size);
    }

    constexpr int GetLeftX() const noexcept { return m_topLeft.GetX(); }
    constexpr int GetTopY() const noexcept { return m_topLeft.GetY(); }
    constexpr int GetRightX() const noexcept { return m_bottomRight.GetX(); }
    constexpr int GetBottomY() const noexcept { return m_bottomRight.GetY(); }

    /// The stored corners, valid as long as the rectangle.
    constexpr IntPoint const& GetTopLeft() const noexcept { return m_topLeft; }
    constexpr IntPoint const& GetBottomRight() const noexcept { return m_bottomRight; }
    constexpr IntPoint GetTopRight() const noexcept { return { GetRightX(), GetTopY() }; }
    constexpr IntPoint GetBottomLeft() const noexcept { return { GetLeftX(), GetBottomY() }; }

    constexpr int GetWidth() const noexcept { return IntArithmetic::Subtract(GetRightX(), GetLeftX()); }
    constexpr int GetHeight() const noexcept { return IntArithmetic::Subtract(GetBottomY(), GetTopY()); }
    constexpr IntSize GetSize() const noexcept { return { GetWidth(), GetHeight() }; }

    /// Half of width and height, truncated toward zero, from the left and top edge.
    constexpr int GetCenterX() const noexcept { return IntArithmetic::Add(GetWidth() / 2, GetLeftX()); }
    constexpr int GetCenterY() const noexcept { return IntArithmetic::Add(GetHeight() / 2, GetTopY()); }
    constexpr IntPoint GetCenter() const noexcept { return { GetCenterX(), GetCenterY() }; }

    /// The edges are inside, on all four sides; a rectangle whose right edge lies left of its left one contains
    /// nothing.
    constexpr bool Contains(IntPoint const& point) const noexcept
    {
        return GetLeftX() <= point.GetX() && point.GetX() <= GetRightX() && GetTopY() <= point.GetY() &&
               point.GetY() <= GetBottomY();
    }

    friend constexpr bool operator==(IntRectangle const& a, IntRectangle const& b) noexcept = default;

    /// All coordinates 0; lives as long as the program. It contains the point (0, 0), its edges being inside.
    static constexpr IntRectangle const& Empty() noexcept;

private:
    static IntRectangle const c_empty;

    constexpr IntRectangle(IntPoint const& topLeft, IntPoint const& bottomRight) noexcept
        : m_topLeft(topLeft),
          m_bottomRight(bottomRight)
    {
    }

    IntPoint m_topLeft;
    IntPoint m_bottomRight;
};

inline constexpr IntRectangle IntRectangle::c_empty{};

constexpr IntRectangle const& IntRectangle::Empty() noexcept
{
    return c_empty;
}

} // namespace Vek::Framework::Utilities
