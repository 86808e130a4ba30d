#pragma once

#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// Compares binary floating-point numbers with a tolerance of 1e-6, and hashes them.
///
/// With a NaN, IsSmaller and IsSmallerOrEqual are true and all others false: both are the contrary of a comparison.
class VEK_API Double
{
public:
    Double() = delete;

    static constexpr double c_epsilon = 1e-6;

    /// Twice the tolerance.
    static double MinmalSignificant() noexcept;
    static bool IsInfinite(double x) noexcept;
    static bool IsZero(double x) noexcept;
    static bool Equals(double a, double b) noexcept;
    static bool IsGreater(double a, double b) noexcept;
    static bool IsGreaterOrEqual(double a, double b) noexcept;
    static bool IsSmaller(double a, double b) noexcept;
    static bool IsSmallerOrEqual(double a, double b) noexcept;

    /// The number of ten-thousandths, rounded half away from zero, as an unsigned number; negative ones wrap into the
    /// upper half. Numbers that Equals takes for equal may differ here at a rounding boundary.
    /// From 2^64 ten-thousandths up, from -2^63 down and for a NaN it is 2^63, as the processor answers such a
    /// conversion.
    static unsigned long long GetHashValue(double x) noexcept;
};

} // namespace Vek::Framework::Utilities
