#pragma once

#include <Utilities/IntPoint.h>

namespace Vek::Framework::Utilities
{

/// A width and a height in whole pixels; both may be negative. A plain value. Arithmetic wraps around.
class IntSize
{
public:
    /// 0 x 0.
    constexpr IntSize() noexcept = default;
    constexpr IntSize(int width, int height) noexcept : m_width(width), m_height(height) {}

    constexpr int GetWidth() const noexcept { return m_width; }
    constexpr int GetHeight() const noexcept { return m_height; }

    /// The larger width and the larger height, each chosen by itself: of 3 x 9 and 5 x 1 it is 5 x 9.
    constexpr IntSize GetMax(IntSize const& other) const noexcept
    {
        return { m_width < other.m_width ? other.m_width : m_width,
                 m_height < other.m_height ? other.m_height : m_height };
    }

    constexpr IntSize operator*(int factor) const noexcept
    {
        return { IntArithmetic::Multiply(m_width, factor), IntArithmetic::Multiply(m_height, factor) };
    }

    /// Truncated toward zero: 7 x -7 by 2 is 3 x -3. Throws ArgumentException for the divisor 0.
    constexpr IntSize operator/(int divisor) const
    {
        return { IntArithmetic::Divide(m_width, divisor), IntArithmetic::Divide(m_height, divisor) };
    }

    /// From a rectangle's top-left corner to its bottom-right one.
    constexpr IntPoint ToVector() const noexcept { return { m_width, m_height }; }

    friend constexpr bool operator==(IntSize const& a, IntSize const& b) noexcept = default;

    /// 0 x 0; lives as long as the program.
    static constexpr IntSize const& Empty() noexcept;

private:
    static IntSize const c_empty;

    int m_width = 0;
    int m_height = 0;
};

inline constexpr IntSize IntSize::c_empty{};

constexpr IntSize const& IntSize::Empty() noexcept
{
    return c_empty;
}

} // namespace Vek::Framework::Utilities
