#pragma once

#include <Platform/WideInteger.h>
#include <Utilities/Internal/DecimalArithmetic/Declets.h>
#include <Utilities/Internal/DecimalArithmetic/PowersOfTen.h>

#include <compare>
#include <cstdint>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

constexpr int c_precision = 34;
constexpr int c_limbDigits = 18;
constexpr std::uint64_t c_limbBase = 1'000'000'000'000'000'000;
constexpr std::uint64_t c_upperLimit = GetPowerOfTen(c_precision - c_limbDigits); // of the upper limb of 34 digits

/// A whole number of up to 36 digits, eighteen to a limb: shifting it by digits takes no long division.
struct Coefficient
{
    std::uint64_t high;
    std::uint64_t low; // below c_limbBase

    friend constexpr std::strong_ordering operator<=>(Coefficient const& a, Coefficient const& b) = default;
    constexpr bool IsZero() const noexcept { return (high | low) == 0; }
};

constexpr Coefficient FromUInt64(std::uint64_t value) noexcept
{
    return { value / c_limbBase, value % c_limbBase };
}

/// Modulo 2^64.
constexpr std::uint64_t ToUInt64(Coefficient const& value) noexcept
{
    return value.high * c_limbBase + value.low;
}

/// 0 for zero.
inline int CountDigits(Coefficient const& value) noexcept
{
    return value.high != 0 ? c_limbDigits + CountDigits(value.high) : CountDigits(value.low);
}

inline Coefficient Add(Coefficient const& a, Coefficient const& b) noexcept
{
    std::uint64_t const low = a.low + b.low;
    bool const carries = low >= c_limbBase;
    return { a.high + b.high + (carries ? 1U : 0U), carries ? low - c_limbBase : low };
}

/// a must not be less than b.
inline Coefficient Subtract(Coefficient const& a, Coefficient const& b) noexcept
{
    bool const borrows = a.low < b.low;
    return { a.high - b.high - (borrows ? 1U : 0U), a.low - b.low + (borrows ? c_limbBase : 0) };
}

/// value * 10^count. The result must have no more than 36 digits; zero stays zero with any count.
inline Coefficient ShiftLeft(Coefficient value, int count) noexcept
{
    if (value.IsZero() || count == 0)
        return value;
    if (count >= c_limbDigits)
    {
        value = { value.low, 0 };
        count -= c_limbDigits;
        return { value.high * GetPowerOfTen(count), 0 };
    }
    Division const split = DivideByPowerOfTen(value.low, c_limbDigits - count);
    std::uint64_t const power = GetPowerOfTen(count);
    return { value.high * power + split.quotient, split.remainder * power };
}

/// A whole number divided by a power of ten: what is left, and what was dropped as a digit string of `count` digits.
struct Shifted
{
    Coefficient value;
    Coefficient dropped;
};

/// For any count from 0 up.
inline Shifted ShiftRight(Coefficient const& value, int count) noexcept
{
    if (count == 0)
        return { value, { 0, 0 } };
    if (count < c_limbDigits)
    {
        Division const high = DivideByPowerOfTen(value.high, count);
        Division const low = DivideByPowerOfTen(value.low, count);
        return { { high.quotient, high.remainder * GetPowerOfTen(c_limbDigits - count) + low.quotient },
                 { 0, low.remainder } };
    }
    if (count == c_limbDigits)
        return { { 0, value.high }, { 0, value.low } };
    if (count <= 2 * c_limbDigits)
    {
        Division const high = DivideByPowerOfTen(value.high, count - c_limbDigits);
        return { { 0, high.quotient }, { high.remainder, value.low } };
    }
    return { { 0, 0 }, value };
}

/// Whether digits dropped by a shift of `count` are at least half of a unit.
inline bool IsHalfOrMore(Coefficient const& dropped, int count) noexcept
{
    if (count == 0 || count > 2 * c_limbDigits)
        return false;
    return count <= c_limbDigits ? dropped.low >= 5 * GetPowerOfTen(count - 1)
                                 : dropped.high >= 5 * GetPowerOfTen(count - c_limbDigits - 1);
}

/// value / 10^count, half away from zero.
inline Coefficient ShiftRightHalfUp(Coefficient const& value, int count) noexcept
{
    Shifted const shifted = ShiftRight(value, count);
    return IsHalfOrMore(shifted.dropped, count) ? Add(shifted.value, { 0, 1 }) : shifted.value;
}

/// Takes up to `limit` zeros off the end and answers how many. Not for zero.
int StripZeros(Coefficient& value, int limit) noexcept;
int StripZeros(std::uint64_t& value, int limit = c_limbDigits) noexcept;

} // namespace Vek::Framework::Utilities::DecimalArithmetic
