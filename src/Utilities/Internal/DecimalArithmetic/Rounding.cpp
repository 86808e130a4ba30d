#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

#include <Platform/Attributes.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// What the digits that are dropped are worth.
struct Dropped
{
    bool isAny;
    bool isHalfOrMore;
};

bool Increments(Rounding rounding, Dropped dropped) noexcept
{
    return rounding == Rounding::Up ? dropped.isAny : rounding == Rounding::HalfUp && dropped.isHalfOrMore;
}

/// Without `count` digits, at least one.
PackedDigits Drop(PackedDigits const& value, int count, Rounding rounding) noexcept
{
    bool isCut = false;
    PackedDigits const withOneMore = ShiftRight(value, count - 1, isCut);
    unsigned const first = withOneMore.low & 0xFU;
    PackedDigits const kept = ShiftRight(withOneMore, 1, isCut);
    return Increments(rounding, { isCut, first >= 5 }) ? Add(kept, { 0, 0, 1 }) : kept;
}

/// Up to fifteen digits with an exponent that is greater by `count`, negative included; false where a word has no room.
bool MoveWord(std::uint64_t& digits, int count, Rounding rounding) noexcept
{
    if (count <= 0)
        return ShiftWordLeft(digits, -count);
    if (count > c_wordDigits)
        return false;
    std::uint64_t const first = digits >> (4 * count - 4);
    Dropped const dropped{ (digits & ((std::uint64_t{ 1 } << 4 * count) - 1)) != 0, (first & 0xFU) >= 5 };
    digits = AddDigits(first >> 4U, 0, Increments(rounding, dropped) ? 1 : 0);
    return true;
}

/// False if that takes more than 34 digits.
bool MoveDigits(PackedDigits& digits, int count, Rounding rounding) noexcept
{
    if (count > 0)
        digits = Drop(digits, count, rounding);
    else if (!digits.IsZero())
    {
        if (CountDigits(digits) - count > c_precision)
            return false;
        digits = ShiftLeft(digits, -count);
    }
    return true;
}

VEK_NOINLINE Encoding RescaleLarge(Encoding a, int exponent, Rounding rounding) noexcept
{
    if (!IsFinite(a) || !IsPlainExponent(exponent))
        return Reference::Rescale(a, exponent, rounding);
    PackedDigits digits = UnpackAllDigits(a);
    return MoveDigits(digits, exponent - GetExponent(a), rounding) ? PackAllDigits(IsNegative(a), exponent, digits)
                                                                   : Reference::Rescale(a, exponent, rounding);
}

} // namespace

Encoding Rescale(Encoding a, int exponent, Rounding rounding) noexcept
{
    if (!IsSmall<c_packedBits>(a) || !IsSmallExponent(exponent))
        return RescaleLarge(a, exponent, rounding);
    std::uint64_t digits = UnpackDigits(a.low);
    if (!MoveWord(digits, exponent - GetSmallExponent(a), rounding))
        return RescaleLarge(a, exponent, rounding);
    return { PackDigits(digits), PackSmallHead(IsNegative(a), exponent) };
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

Whole ToWhole(Finite const& value) noexcept
{
    Coefficient whole = value.coefficient;
    if (value.exponent <= 0)
        whole = ShiftRightHalfUp(whole, -value.exponent);
    else if (!whole.IsZero())
    {
        if (CountDigits(whole) + value.exponent > c_precision)
            return {};
        whole = ShiftLeft(whole, value.exponent);
    }
    return { value.isNegative, whole > FromUInt64(~std::uint64_t{ 0 }), ToUInt64(whole) };
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
