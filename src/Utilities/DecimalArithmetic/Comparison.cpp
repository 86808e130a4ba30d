#include <Utilities/DecimalArithmetic/Arithmetic.h>

#include <bit>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

int ToInt(std::strong_ordering order) noexcept
{
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

/// Of magnitudes, neither zero.
int CompareMagnitudes(Finite const& a, Finite const& b) noexcept
{
    int const digitsOfA = CountDigits(a.coefficient);
    int const digitsOfB = CountDigits(b.coefficient);
    if (int const order = (a.exponent + digitsOfA) - (b.exponent + digitsOfB); order != 0)
        return order < 0 ? -1 : 1;
    return ToInt(ShiftLeft(a.coefficient, c_precision - digitsOfA) <=>
                 ShiftLeft(b.coefficient, c_precision - digitsOfB));
}

int CompareFinite(Finite const& a, Finite const& b) noexcept
{
    int const signOfA = a.coefficient.IsZero() ? 0 : a.isNegative ? -1 : 1;
    int const signOfB = b.coefficient.IsZero() ? 0 : b.isNegative ? -1 : 1;
    if (signOfA != signOfB)
        return signOfA < signOfB ? -1 : 1;
    return signOfA == 0 ? 0 : signOfA * CompareMagnitudes(a, b);
}

/// The place of an Infinity among the others.
int GetRank(Encoding a) noexcept
{
    return !IsInfinite(a) ? 0 : IsNegative(a) ? -1 : 1;
}

[[gnu::noinline]] int CompareLarge(Encoding a, Encoding b) noexcept
{
    if (IsNaN(a) || IsNaN(b))
        return 0;
    if (IsInfinite(a) || IsInfinite(b))
        return ToInt(GetRank(a) <=> GetRank(b));
    return CompareFinite(Unpack(a), Unpack(b));
}

/// The same exponent and sign: the highest declet that differs decides, if it differs in value.
int CompareDeclets(std::uint64_t a, std::uint64_t b) noexcept
{
    for (std::uint64_t difference = a ^ b; difference != 0;)
    {
        unsigned const index = (static_cast<unsigned>(std::bit_width(difference)) - 1) / 10;
        unsigned const left = c_valuesOfDeclets[GetDeclet(a, index)];
        unsigned const right = c_valuesOfDeclets[GetDeclet(b, index)];
        if (left != right)
            return left < right ? -1 : 1;
        difference &= (std::uint64_t{ 1 } << 10 * index) - 1;
    }
    return 0;
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
            order = ToInt(Unpack(a).exponent <=> Unpack(b).exponent) * (isNegative ? -1 : 1);
    }
    return wantsGreater ? order >= 0 : order <= 0;
}

} // namespace

int Compare(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_limbBits>(a, b) && a.high == b.high)
        return IsNegative(a) ? CompareDeclets(b.low, a.low) : CompareDeclets(a.low, b.low);
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
    bool const isZero = IsSmall<c_limbBits>(a) ? a.low == 0 : Unpack(a).coefficient.IsZero();
    return isZero ? Encoding{ a.low, a.high & ~c_signBit } : Negate(a);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
