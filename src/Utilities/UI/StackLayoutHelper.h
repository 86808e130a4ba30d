#pragma once

#include <Utilities/IntRectangle.h>

namespace Vek::Framework::Utilities::UI
{

/// Hands out rectangles of one width, each below the one before with a gap between them. Everything is in pixels.
class StackLayoutHelper
{
public:
    /// `start` is the first rectangle's top-left corner.
    constexpr StackLayoutHelper(IntPoint const& start, int width, int gap) noexcept
        : m_next(start),
          m_width(width),
          m_gap(gap)
    {
    }

    /// The next rectangle: from (10, 20), 100 wide with gaps of 5, GetNext(30) is (10, 20)-(110, 50), then
    /// (10, 55)-(110, 85).
    constexpr IntRectangle GetNext(int height) noexcept
    {
        IntRectangle const next = IntRectangle::FromPointAndSize(m_next, { m_width, height });
        m_next = next.GetBottomLeft() + IntPoint(0, m_gap);
        return next;
    }

    /// Where the next rectangle begins, the gap behind the last one included.
    constexpr int GetNextY() const noexcept { return m_next.GetY(); }

private:
    IntPoint m_next;
    int m_width;
    int m_gap;
};

} // namespace Vek::Framework::Utilities::UI
