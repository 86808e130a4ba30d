#include <Utilities/Internal/DecimalArithmetic/Coefficient.h>

#include <bit>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// Not for zero. A number that ends in n zeros is divisible by 2^n, which is quicker to see.
int CountTrailingZeros(std::uint64_t limb, int limit) noexcept
{
    int count = 0;
    for (int const step : { 16, 8, 4, 2, 1 })
    {
        if (count + step > limit || std::countr_zero(limb) < step)
            continue;
        Division const split = DivideByPowerOfTen(limb, step);
        if (split.remainder != 0)
            continue;
        limb = split.quotient;
        count += step;
    }
    return count;
}

} // namespace

int StripZeros(Coefficient& value, int limit) noexcept
{
    int count = 0;
    if (value.low == 0 && limit >= c_limbDigits)
    {
        value = { 0, value.high };
        count = c_limbDigits;
    }
    int const rest = value.low == 0 ? limit - count : CountTrailingZeros(value.low, limit - count);
    value = ShiftRight(value, rest).value;
    return count + rest;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
