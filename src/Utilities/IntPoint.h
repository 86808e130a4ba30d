#pragma once

#include <Utilities/IntArithmetic.h>

namespace Vek::Framework::Utilities
{

/// A place on the screen in whole pixels, or a distance between two. A plain value; x grows to the right, y downwards.
/// Arithmetic wraps around.
class IntPoint
{
public:
    /// (0, 0).
    constexpr IntPoint() noexcept = default;
    constexpr IntPoint(int x, int y) noexcept : m_x(x), m_y(y) {}

    constexpr int GetX() const noexcept { return m_x; }
    constexpr int GetY() const noexcept { return m_y; }

    friend constexpr IntPoint operator+(IntPoint const& a, IntPoint const& b) noexcept
    {
        return { IntArithmetic::Add(a.m_x, b.m_x), IntArithmetic::Add(a.m_y, b.m_y) };
    }

    friend constexpr IntPoint operator-(IntPoint const& a, IntPoint const& b) noexcept
    {
        return { IntArithmetic::Subtract(a.m_x, b.m_x), IntArithmetic::Subtract(a.m_y, b.m_y) };
    }

    friend constexpr bool operator==(IntPoint const& a, IntPoint const& b) noexcept = default;

    /// (0, 0); lives as long as the program.
    static constexpr IntPoint const& Zero() noexcept;

private:
    static IntPoint const c_zero;

    int m_x = 0;
    int m_y = 0;
};

inline constexpr IntPoint IntPoint::c_zero{};

constexpr IntPoint const& IntPoint::Zero() noexcept
{
    return c_zero;
}

} // namespace Vek::Framework::Utilities
