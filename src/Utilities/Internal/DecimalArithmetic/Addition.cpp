#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

#include <Platform/Attributes.h>

#include <algorithm>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// A finite number by its digits.
struct Term
{
    bool isNegative;
    int exponent;
    PackedDigits digits;
};

Term MakeTerm(Encoding encoding) noexcept
{
    return { IsNegative(encoding), GetExponent(encoding), UnpackAllDigits(encoding) };
}

/// The number with the greater exponent is moved left as far as there is room, the other one right for the rest.
void Align(Term& upper, Term& lower) noexcept
{
    // What is cut off counts for nothing behind a digit that is rounded off; a difference may lose one digit in front.
    bool const isDifference = upper.isNegative != lower.isNegative;
    int const limit = isDifference ? c_precision + 2 : c_precision + 1;
    int const difference = upper.exponent - lower.exponent;
    if (upper.digits.IsZero())
    {
        upper.exponent = lower.exponent;
        return;
    }
    int const left = std::min(difference, limit - CountDigits(upper.digits));
    upper.digits = ShiftLeft(upper.digits, left);
    upper.exponent -= left;
    if (left == difference)
        return;
    bool isCut = false;
    lower.digits = ShiftRight(lower.digits, difference - left, isCut);
    if (isCut && isDifference)
        lower.digits = Add(lower.digits, { 0, 0, 1 }); // what is left over then is cut off from the result
}

/// Of terms with the same exponent.
Term AddAligned(Term const& a, Term const& b) noexcept
{
    if (a.isNegative == b.isNegative)
        return { a.isNegative, a.exponent, Add(a.digits, b.digits) };
    if (a.digits == b.digits)
        return { false, a.exponent, {} };
    return a.digits < b.digits ? Term{ b.isNegative, a.exponent, Subtract(b.digits, a.digits) }
                               : Term{ a.isNegative, a.exponent, Subtract(a.digits, b.digits) };
}

/// Half-up, from up to 36 digits.
void RoundToPrecision(Term& sum) noexcept
{
    int const surplus = CountDigits(sum.digits) - c_precision;
    if (surplus <= 0)
        return;
    auto const dropped = static_cast<unsigned>(sum.digits.low >> (4 * (surplus - 1))) & 0xFU;
    bool isCut = false;
    sum.digits = ShiftRight(sum.digits, surplus, isCut);
    sum.exponent += surplus;
    if (dropped < 5)
        return;
    sum.digits = Add(sum.digits, { 0, 0, 1 });
    if (CountDigits(sum.digits) > c_precision) // 10^34
    {
        sum.digits = ShiftRight(sum.digits, 1, isCut);
        ++sum.exponent;
    }
}

VEK_NOINLINE Encoding AddLarge(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Add(a, b);
    Term left = MakeTerm(a);
    Term right = MakeTerm(b);
    if (left.exponent > right.exponent)
        Align(left, right);
    else if (left.exponent < right.exponent)
        Align(right, left);
    Term sum = AddAligned(left, right);
    sum.exponent = std::max(left.exponent, right.exponent);
    RoundToPrecision(sum);
    return IsPlainExponent(sum.exponent) ? PackAllDigits(sum.isNegative, sum.exponent, sum.digits)
                                         : Reference::Add(a, b);
}

/// A word of digits and perhaps a sixteenth one, which as a declet is itself.
std::uint64_t PackSum(std::uint64_t digits) noexcept
{
    return PackDigits(digits) | (digits >> c_wordBits) << c_packedBits;
}

/// Both of up to fifteen digits.
Encoding AddSmall(Encoding a, Encoding b) noexcept
{
    std::uint64_t left = UnpackDigits(a.low);
    std::uint64_t right = UnpackDigits(b.low);
    std::uint64_t high = a.high & ~c_signBit;
    if (int const difference = GetSmallExponent(a) - GetSmallExponent(b); difference != 0) [[unlikely]]
    {
        if (!(difference > 0 ? ShiftWordLeft(left, difference) : ShiftWordLeft(right, -difference)))
            return AddLarge(a, b);
        high = difference > 0 ? b.high & ~c_signBit : high;
    }
    if (IsNegative(a) == IsNegative(b))
        return { PackSum(AddDigits(left, right)), high | (a.high & c_signBit) };
    if (left == right)
        return { 0, high };
    return left > right ? Encoding{ PackDigits(SubtractDigits(left, right).digits), high | (a.high & c_signBit) }
                        : Encoding{ PackDigits(SubtractDigits(right, left).digits), high | (b.high & c_signBit) };
}

} // namespace

Encoding Add(Encoding a, Encoding b) noexcept
{
    return AreSmall<c_packedBits>(a, b) ? AddSmall(a, b) : AddLarge(a, b);
}

Encoding Subtract(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_packedBits>(a, b))
        return AddSmall(a, Negate(b));
    return IsFinite(a) && IsFinite(b) ? AddLarge(a, Negate(b)) : Reference::Subtract(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
