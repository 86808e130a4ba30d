#pragma once

#include <Exceptions/ArgumentException.h>

/// Signed 32-bit arithmetic that wraps around instead of overflowing, as points, sizes and rectangles compute.
namespace Vek::Framework::Utilities::IntArithmetic
{

constexpr int Add(int a, int b) noexcept
{
    return static_cast<int>(static_cast<unsigned int>(a) + static_cast<unsigned int>(b));
}

constexpr int Subtract(int a, int b) noexcept
{
    return static_cast<int>(static_cast<unsigned int>(a) - static_cast<unsigned int>(b));
}

constexpr int Multiply(int a, int b) noexcept
{
    return static_cast<int>(static_cast<unsigned int>(a) * static_cast<unsigned int>(b));
}

/// Truncated toward zero; the smallest int divided by -1 is itself. Throws ArgumentException for the divisor 0.
constexpr int Divide(int dividend, int divisor)
{
    if (divisor == 0)
        throw ArgumentException();
    return divisor == -1 ? Subtract(0, dividend) : dividend / divisor;
}

} // namespace Vek::Framework::Utilities::IntArithmetic
