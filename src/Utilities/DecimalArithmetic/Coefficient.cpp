#include <Utilities/DecimalArithmetic/Coefficient.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

Shifted ShiftRight(Coefficient const& value, int count) noexcept
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

bool IsHalfOrMore(Coefficient const& dropped, int count) noexcept
{
    if (count == 0 || count > 2 * c_limbDigits)
        return false;
    return count <= c_limbDigits ? dropped.low >= 5 * GetPowerOfTen(count - 1)
                                 : dropped.high >= 5 * GetPowerOfTen(count - c_limbDigits - 1);
}

Coefficient ShiftRightHalfUp(Coefficient const& value, int count) noexcept
{
    Shifted const shifted = ShiftRight(value, count);
    return IsHalfOrMore(shifted.dropped, count) ? Add(shifted.value, { 0, 1 }) : shifted.value;
}

int StripZeros(Coefficient& value, int limit) noexcept
{
    int stripped = 0;
    for (int const step : { c_limbDigits, 16, 8, 4, 2, 1 })
    {
        if (stripped + step > limit)
            continue;
        Shifted const shifted = ShiftRight(value, step);
        if (!shifted.dropped.IsZero())
            continue;
        value = shifted.value;
        stripped += step;
    }
    return stripped;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
