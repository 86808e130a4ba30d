#include <Utilities/Double.h>

#include <cmath>
#include <cstdint>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr double c_twoTo63 = 9223372036854775808.0;
constexpr std::uint64_t c_topBit = std::uint64_t{ 1 } << 63;

/// The conversion of the processor, without the undefined part of the language's.
std::uint64_t ConvertSigned(double whole) noexcept
{
    bool const fits = whole >= -c_twoTo63 && whole < c_twoTo63;
    return fits ? static_cast<std::uint64_t>(static_cast<std::int64_t>(whole)) : c_topBit;
}

} // namespace

double Double::MinmalSignificant() noexcept
{
    return 2 * c_epsilon;
}

bool Double::IsInfinite(double x) noexcept
{
    return std::isinf(x);
}

bool Double::IsZero(double x) noexcept
{
    return std::fabs(x) < c_epsilon;
}

bool Double::Equals(double a, double b) noexcept
{
    return a == b || std::fabs(a - b) < c_epsilon; // the first for two Infinities
}

bool Double::IsGreater(double a, double b) noexcept
{
    return a - b >= c_epsilon;
}

bool Double::IsGreaterOrEqual(double a, double b) noexcept
{
    return a == b || a - b > -c_epsilon;
}

bool Double::IsSmaller(double a, double b) noexcept
{
    return a != b && !(a - b > -c_epsilon);
}

bool Double::IsSmallerOrEqual(double a, double b) noexcept
{
    return !(a - b >= c_epsilon);
}

unsigned long long Double::GetHashValue(double x) noexcept
{
    // One unit in the last place below 0.0001: so 0.00005 is above one half and rounds up.
    constexpr double tenThousandth = 0x1.a36e2eb1c432cp-14;
    double const whole = std::round(x / tenThousandth);
    return whole >= c_twoTo63 ? ConvertSigned(whole - c_twoTo63) | c_topBit : ConvertSigned(whole);
}

} // namespace Vek::Framework::Utilities
