#include <Utilities/DecimalArithmetic/Arithmetic.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

bool Increments(Rounding rounding, Coefficient const& dropped, int count) noexcept
{
    switch (rounding)
    {
    case Rounding::Up:
        return !dropped.IsZero();
    case Rounding::HalfUp:
        return IsHalfOrMore(dropped, count);
    default:
        return false;
    }
}

/// The coefficient at another exponent; false if that takes more than 34 digits.
bool MoveTo(Finite& value, int exponent, Rounding rounding) noexcept
{
    int const left = value.exponent - exponent;
    value.exponent = exponent;
    if (left > 0)
    {
        if (!value.coefficient.IsZero() && CountDigits(value.coefficient) + left > c_precision)
            return false;
        value.coefficient = ShiftLeft(value.coefficient, left);
        return true;
    }
    Shifted const shifted = ShiftRight(value.coefficient, -left);
    value.coefficient = Increments(rounding, shifted.dropped, -left) ? Add(shifted.value, { 0, 1 }) : shifted.value;
    return true;
}

/// The same for up to eighteen digits; false as well where that does not do.
bool MoveSmallTo(Encoding a, int exponent, Rounding rounding, Encoding& result) noexcept
{
    int const count = exponent - GetSmallExponent(a);
    if (count < 0 || count > c_limbDigits || !IsSmallExponent(exponent))
        return false;
    std::uint64_t coefficient = UnpackLimb(a.low);
    if (count > 0)
    {
        Division const split = DivideByPowerOfTen(coefficient, count);
        coefficient = split.quotient + (Increments(rounding, { 0, split.remainder }, count) ? 1U : 0U);
    }
    result = PackSmall(IsNegative(a), exponent, coefficient);
    return true;
}

} // namespace

Encoding Rescale(Encoding a, int exponent, Rounding rounding) noexcept
{
    if (Encoding result; IsSmall<c_limbBits>(a) && MoveSmallTo(a, exponent, rounding, result))
        return result;
    if (!IsFinite(a) || !IsPlainExponent(exponent))
        return Reference::Rescale(a, exponent, rounding);
    Finite value = Unpack(a);
    return MoveTo(value, exponent, rounding) ? Pack(value) : Reference::Rescale(a, exponent, rounding);
}

Encoding Reduce(Encoding a) noexcept
{
    if (!IsFinite(a))
        return Reference::Reduce(a);
    Finite value = Unpack(a);
    if (value.coefficient.IsZero())
        return Pack({ value.isNegative, 0, { 0, 0 } });
    value.exponent += StripZeros(value.coefficient, c_greatestPlainExponent - value.exponent);
    return Pack(value);
}

Whole ToWhole(Encoding a) noexcept
{
    return IsFinite(a) ? ToWhole(Unpack(a)) : Whole{};
}

Whole ToWhole(Finite value) noexcept
{
    if (!MoveTo(value, 0, Rounding::HalfUp))
        return {};
    Coefficient const limit = FromUInt64(~std::uint64_t{ 0 });
    return { value.isNegative, value.coefficient > limit, ToUInt64(value.coefficient) };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
