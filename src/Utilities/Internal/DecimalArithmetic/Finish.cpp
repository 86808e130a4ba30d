#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

Finite RoundToPrecision(Finite value) noexcept
{
    int const surplus = CountDigits(value.coefficient) - c_precision;
    if (surplus <= 0)
        return value;
    value.exponent += surplus;
    value.coefficient = ShiftRightHalfUp(value.coefficient, surplus);
    if (CountDigits(value.coefficient) > c_precision) // 10^34, whose last digit is a zero
    {
        ++value.exponent;
        value.coefficient = ShiftRight(value.coefficient, 1).value;
    }
    return value;
}

Encoding FinishLarge(Finite const& value) noexcept
{
    Finite const rounded = RoundToPrecision(value);
    return IsPlainExponent(rounded.exponent) ? Pack(rounded) : Reference::Fit(value);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
