#pragma once

#include <Platform/WideInteger.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// mantissa * 2^exponent, the mantissa's highest bit set.
struct BinaryPower
{
    Platform::UInt128 mantissa;
    int exponent;
};

constexpr bool HasHighestBit(Platform::UInt128 value) noexcept
{
    return value.high >> 63U != 0;
}

/// By 1 to 63 bits.
constexpr Platform::UInt128 ShiftRight(Platform::UInt128 value, unsigned count) noexcept
{
    return { value.low >> count | value.high << (64U - count), value.high >> count };
}

constexpr Platform::UInt128 DivideByFive(Platform::UInt128 value) noexcept
{
    constexpr std::uint64_t fifth = ~std::uint64_t{ 0 } / 5; // 2^64 is five times that, and 1
    std::uint64_t const rest = value.high % 5;
    return { rest * fifth + value.low / 5 + (rest + value.low % 5) / 5, value.high / 5 };
}

/// Ten is five quarters of 2^3; where these have one bit more, five eighths of 2^4.
constexpr BinaryPower TimesTen(BinaryPower const& power) noexcept
{
    Platform::UInt128 const quarters = Add(power.mantissa, ShiftRight(power.mantissa, 2));
    if (!IsLess(quarters, power.mantissa))
        return { quarters, power.exponent + 3 };
    Platform::UInt128 const eighths = ShiftRight(quarters, 1);
    return { { eighths.low, eighths.high | std::uint64_t{ 1 } << 63U }, power.exponent + 4 };
}

/// A tenth is four fifths of 2^-3; where these have one bit less, eight fifths of 2^-4.
constexpr BinaryPower ByTen(BinaryPower const& power) noexcept
{
    Platform::UInt128 const fifths = Subtract(power.mantissa, DivideByFive(power.mantissa));
    return HasHighestBit(fifths) ? BinaryPower{ fifths, power.exponent - 3 }
                                 : BinaryPower{ Platform::ShiftLeft(fifths, 1), power.exponent - 4 };
}

constexpr int c_leastBinaryPower = -64;
constexpr int c_greatestBinaryPower = 63;

/// 10^-64 to 10^63, right but for less than 2^-119 of each.
constexpr auto c_binaryPowers = []
{
    std::array<BinaryPower, c_greatestBinaryPower - c_leastBinaryPower + 1> powers{};
    constexpr std::size_t one = -c_leastBinaryPower;
    powers[one] = { { 0, std::uint64_t{ 1 } << 63U }, -127 };
    for (std::size_t i = one; i + 1 < powers.size(); ++i)
        powers[i + 1] = TimesTen(powers[i]);
    for (std::size_t i = one; i > 0; --i)
        powers[i - 1] = ByTen(powers[i]);
    return powers;
}();

} // namespace Vek::Framework::Utilities::DecimalArithmetic
