#pragma once

#include <Platform/WideInteger.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

using Platform::Division;

/// 10^0 to 10^19.
constexpr auto c_powersOfTen = []
{
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers)
    {
        entry = power;
        power *= 10;
    }
    return powers;
}();

constexpr std::uint64_t GetPowerOfTen(int exponent) noexcept
{
    return c_powersOfTen[static_cast<std::size_t>(exponent)];
}

/// 0 for 0.
constexpr int CountDigits(std::uint64_t value) noexcept
{
    // 1233 / 4096 is a little above log10 of 2: the estimate is right or one too large.
    int const estimate = (static_cast<int>(std::bit_width(value)) * 1233) >> 12;
    return estimate + (value >= GetPowerOfTen(estimate) ? 1 : 0);
}

/// What divides by a power of ten without a division: the quotient is the high word of a product, shifted.
struct Reciprocal
{
    std::uint64_t multiplier; // 2^(64 + shift) / 10^n, rounded up
    unsigned shift;
};

/// For 10^1 to 10^18. The error of the multiplier is below 10^n / 2^(64 + shift), so that quotients of dividends below
/// 2^63 come out exact (Granlund and Montgomery).
constexpr auto c_reciprocals = []
{
    std::array<Reciprocal, 19> reciprocals{};
    for (std::size_t n = 1; n < reciprocals.size(); ++n)
    {
        unsigned const shift = static_cast<unsigned>(std::bit_width(c_powersOfTen[n])) - 1;
        std::uint64_t quotient = 0;
        std::uint64_t remainder = std::uint64_t{ 1 } << shift; // less than 10^n
        for (int bit = 0; bit < 64; ++bit)
        {
            remainder *= 2;
            quotient *= 2;
            if (remainder >= c_powersOfTen[n])
            {
                remainder -= c_powersOfTen[n];
                ++quotient;
            }
        }
        reciprocals[n] = { quotient + 1, shift };
    }
    return reciprocals;
}();

/// By 10^exponent, 1 to 18; `dividend` below 2^63.
inline Division DivideByPowerOfTen(std::uint64_t dividend, int exponent) noexcept
{
    Reciprocal const& reciprocal = c_reciprocals[static_cast<std::size_t>(exponent)];
    std::uint64_t const quotient = Platform::Multiply(dividend, reciprocal.multiplier).high >> reciprocal.shift;
    return { quotient, dividend - quotient * GetPowerOfTen(exponent) };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
