#include <Utilities/DecimalArithmetic/Encoding.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr std::uint64_t c_billion = 1'000'000'000;

/// Three declets as nine digits.
std::uint64_t UnpackNine(std::uint64_t declets) noexcept
{
    return (std::uint64_t{ c_valuesOfDeclets[GetDeclet(declets, 2)] } * 1000 +
            c_valuesOfDeclets[GetDeclet(declets, 1)]) *
               1000 +
           c_valuesOfDeclets[GetDeclet(declets, 0)];
}

/// Nine digits as three declets. 32 bits are enough and divide faster.
std::uint64_t PackNine(std::uint32_t value) noexcept
{
    std::uint32_t const thousands = value / 1000;
    std::uint32_t const millions = thousands / 1000;
    return std::uint64_t{ c_declets[millions] } << 20U |
           std::uint64_t{ c_declets[thousands - millions * 1000] } << 10U | c_declets[value - thousands * 1000];
}

/// The five upper declets, which lie across both words.
constexpr std::uint64_t GetUpperDeclets(Encoding encoding) noexcept
{
    return (encoding.high & c_upperDeclets) << 4U | encoding.low >> c_limbBits;
}

} // namespace

std::uint64_t UnpackLimb(std::uint64_t declets) noexcept
{
    return UnpackNine(declets >> 30U) * c_billion + UnpackNine(declets);
}

std::uint64_t PackLimb(std::uint64_t value) noexcept
{
    std::uint64_t const high = value / c_billion;
    return PackNine(static_cast<std::uint32_t>(high)) << 30U |
           PackNine(static_cast<std::uint32_t>(value - high * c_billion));
}

Coefficient UnpackDeclets(Encoding encoding) noexcept
{
    return { UnpackLimb(GetUpperDeclets(encoding)), UnpackLimb(encoding.low) };
}

Finite Unpack(Encoding encoding) noexcept
{
    bool const hasLargeDigit = (encoding.high >> 61U & 3U) == 3; // 8 or 9: then the exponent's bits stand further down
    std::uint64_t const digit = hasLargeDigit ? 8 + (encoding.high >> 58U & 1U) : encoding.high >> 58U & 7U;
    std::uint64_t const exponentTop = encoding.high >> (hasLargeDigit ? 59U : 61U) & 3U;
    std::uint64_t const exponent = exponentTop << 12U | (encoding.high >> c_exponentShift & 0xFFFU);
    Coefficient coefficient = UnpackDeclets(encoding);
    coefficient.high += digit * GetPowerOfTen(c_precision - 1 - c_limbDigits);
    return { IsNegative(encoding), static_cast<int>(exponent) - c_bias, coefficient };
}

Encoding Pack(Finite const& value) noexcept
{
    Division const high = DivideByPowerOfTen(value.coefficient.high, c_precision - 1 - c_limbDigits);
    std::uint64_t const upper = PackLimb(high.remainder);
    std::uint64_t const biased = static_cast<std::uint64_t>(value.exponent + c_bias);
    std::uint64_t const combined =
        high.quotient < 8 ? (biased >> 12U) << 61U | high.quotient << 58U
                          : std::uint64_t{ 3 } << 61U | (biased >> 12U) << 59U | (high.quotient & 1U) << 58U;
    return { PackLimb(value.coefficient.low) | upper << c_limbBits,
             (value.isNegative ? c_signBit : 0) | combined | (biased & 0xFFFU) << c_exponentShift | upper >> 4U };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
