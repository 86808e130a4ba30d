#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>

#include <Platform/Attributes.h>

#include <bit>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

int ToInt(std::strong_ordering order) noexcept
{
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

/// The same exponent and sign: the highest declet that differs decides, if it differs in value.
int CompareDeclets(std::uint64_t a, std::uint64_t b) noexcept
{
    for (std::uint64_t difference = a ^ b; difference != 0;)
    {
        unsigned const index = (static_cast<unsigned>(std::bit_width(difference)) - 1) / 10;
        unsigned const left = c_valuesOfDeclets[0][GetDeclet(a, index)];
        unsigned const right = c_valuesOfDeclets[0][GetDeclet(b, index)];
        if (left != right)
            return left < right ? -1 : 1;
        difference &= (std::uint64_t{ 1 } << 10 * index) - 1;
    }
    return 0;
}

/// The same exponent.
int CompareDigits(Encoding a, Encoding b) noexcept
{
    if (int const order = ToInt(GetFirstDigit(a) <=> GetFirstDigit(b)); order != 0)
        return order;
    if (int const order = CompareDeclets(GetUpperDeclets(a), GetUpperDeclets(b)); order != 0)
        return order;
    return CompareDeclets(a.low & c_limbMask, b.low & c_limbMask);
}

/// Neither zero.
int CompareMagnitudes(Encoding a, Encoding b) noexcept
{
    int const shift = GetExponent(a) - GetExponent(b);
    if (shift == 0)
        return CompareDigits(a, b);
    // Digits and exponent together are the power of ten that a number stays below.
    if (int const order = CountDigits(a) - CountDigits(b) + shift; order != 0)
        return order < 0 ? -1 : 1;
    // The digits of both fit into the one with more of them.
    Coefficient const left = Unpack(a).coefficient;
    Coefficient const right = Unpack(b).coefficient;
    return shift > 0 ? ToInt(ShiftLeft(left, shift) <=> right) : ToInt(left <=> ShiftLeft(right, -shift));
}

int GetSign(Encoding a) noexcept
{
    return CountDigits(a) == 0 ? 0 : IsNegative(a) ? -1 : 1;
}

int CompareFinite(Encoding a, Encoding b) noexcept
{
    int const sign = GetSign(a);
    if (int const other = GetSign(b); sign != other)
        return sign < other ? -1 : 1;
    return sign == 0 ? 0 : sign * CompareMagnitudes(a, b);
}

/// The place of an Infinity among the others.
int GetRank(Encoding a) noexcept
{
    return !IsInfinite(a) ? 0 : IsNegative(a) ? -1 : 1;
}

VEK_NOINLINE int CompareLarge(Encoding a, Encoding b) noexcept
{
    if (IsNaN(a) || IsNaN(b))
        return 0;
    if (IsInfinite(a) || IsInfinite(b))
        return ToInt(GetRank(a) <=> GetRank(b));
    return CompareFinite(a, b);
}

bool IsFirst(Encoding a, Encoding b, bool wantsGreater) noexcept
{
    int order = Compare(a, b);
    if (order == 0) // then 0 is above -0, and 15E-1 above 150E-2, and below zero the other way round
    {
        bool const isNegative = IsNegative(a);
        if (isNegative != IsNegative(b))
            order = isNegative ? -1 : 1;
        else
            order = ToInt(GetExponent(a) <=> GetExponent(b)) * (isNegative ? -1 : 1);
    }
    return wantsGreater ? order >= 0 : order <= 0;
}

} // namespace

int Compare(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_limbBits>(a, b))
    {
        if (a.high == b.high)
            return IsNegative(a) ? CompareDeclets(b.low, a.low) : CompareDeclets(a.low, b.low);
        if (IsNegative(a) != IsNegative(b))
            return (a.low | b.low) == 0 ? 0 : IsNegative(a) ? -1 : 1;
    }
    return CompareLarge(a, b);
}

Encoding Max(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Max(a, b);
    return IsFirst(a, b, true) ? a : b;
}

Encoding Min(Encoding a, Encoding b) noexcept
{
    if (!IsFinite(a) || !IsFinite(b))
        return Reference::Min(a, b);
    return IsFirst(a, b, false) ? a : b;
}

Encoding Minus(Encoding a) noexcept
{
    if (!IsFinite(a))
        return Reference::Minus(a);
    // 0 - 0 is 0, whatever the zero's sign.
    return CountDigits(a) == 0 ? Encoding{ a.low, a.high & ~c_signBit } : Negate(a);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
