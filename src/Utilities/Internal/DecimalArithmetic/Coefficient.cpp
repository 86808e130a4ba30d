#include <Utilities/Internal/DecimalArithmetic/Coefficient.h>

#include <bit>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// A number is divisible by 10^n when it is by 2^n and by 5^n: times the inverse of 5^n modulo 2^64, and the n lowest
/// bits moved to the top, it is the quotient then, and greater than any quotient else (Granlund and Montgomery).
struct Divisibility
{
    int exponent;
    std::uint64_t inverse;
    std::uint64_t greatestQuotient;
};

constexpr Divisibility MakeDivisibility(int exponent) noexcept
{
    std::uint64_t power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 5;
    std::uint64_t inverse = power; // right to three bits, and twice as many with every step
    for (int bits = 3; bits < 64; bits *= 2)
        inverse *= 2 - power * inverse;
    return { exponent, inverse, ~std::uint64_t{ 0 } / GetPowerOfTen(exponent) };
}

} // namespace

int StripZeros(std::uint64_t& value, int limit) noexcept
{
    static constexpr Divisibility steps[] = { MakeDivisibility(16), MakeDivisibility(8), MakeDivisibility(4),
                                              MakeDivisibility(2), MakeDivisibility(1) };
    int count = 0;
    for (Divisibility const& step : steps)
    {
        std::uint64_t const quotient = std::rotr(value * step.inverse, step.exponent);
        bool const isStripped = quotient <= step.greatestQuotient && count + step.exponent <= limit;
        value = isStripped ? quotient : value;
        count += isStripped ? step.exponent : 0;
    }
    return count;
}

int StripZeros(Coefficient& value, int limit) noexcept
{
    int count = 0;
    if (value.low == 0 && limit >= c_limbDigits)
    {
        value = { 0, value.high };
        count = c_limbDigits;
    }
    std::uint64_t low = value.low;
    int const rest = low == 0 ? limit - count : StripZeros(low, limit - count);
    value = ShiftRight(value, rest).value;
    return count + rest;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
