#include <Utilities/DecimalArithmetic/Arithmetic.h>

#include <array>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

using Platform::UInt128;

/// Four limbs of eighteen digits, the lowest first.
using Product = std::array<std::uint64_t, 4>;

/// The dividend below 10^18 * 2^64.
Division Split(UInt128 value) noexcept
{
    return Platform::Divide(value, c_limbBase);
}

Product MultiplyExactly(Coefficient const& a, Coefficient const& b) noexcept
{
    Division const lowest = Split(Platform::Multiply(a.low, b.low));
    UInt128 const crossed = Add(Platform::Multiply(a.low, b.high), Platform::Multiply(a.high, b.low));
    Division const middle = Split(Add(crossed, lowest.quotient));
    Division const highest = Split(Add(Platform::Multiply(a.high, b.high), middle.quotient));
    return { lowest.remainder, middle.remainder, highest.remainder, highest.quotient };
}

int CountDigits(Product const& product) noexcept
{
    int limb = 3;
    while (limb > 0 && product[static_cast<std::size_t>(limb)] == 0)
        --limb;
    return limb * c_limbDigits + DecimalArithmetic::CountDigits(product[static_cast<std::size_t>(limb)]);
}

/// The limbs from `first` on, less their lowest `count` digits (below eighteen). The rest must fit two limbs.
Coefficient Cut(Product const& product, std::size_t first, int count) noexcept
{
    Coefficient const lower{ product[first + 1], product[first] };
    if (count == 0)
        return lower;
    Coefficient shifted = ShiftRight(lower, count).value;
    if (first + 2 < product.size())
        shifted.high += product[first + 2] * GetPowerOfTen(c_limbDigits - count);
    return shifted;
}

/// The first 36 digits.
Finite CutToLimbs(bool isNegative, int exponent, Product const& product) noexcept
{
    int const count = CountDigits(product) - 2 * c_limbDigits;
    if (count <= 0)
        return { isNegative, exponent, { product[1], product[0] } };
    std::size_t const first = static_cast<std::size_t>(count / c_limbDigits);
    return { isNegative, exponent + count, Cut(product, first, count % c_limbDigits) };
}

/// 36 digits, which is more than are kept, and what follows is cut off.
Finite MultiplyToLimbs(Finite const& a, Finite const& b) noexcept
{
    return CutToLimbs(a.isNegative != b.isNegative, a.exponent + b.exponent,
                      MultiplyExactly(a.coefficient, b.coefficient));
}

/// Both of up to eighteen digits.
Encoding MultiplySmall(Encoding a, Encoding b) noexcept
{
    bool const isNegative = IsNegative(a) != IsNegative(b);
    int const exponent = GetSmallExponent(a) + GetSmallExponent(b);
    UInt128 const product = Platform::Multiply(UnpackLimb(a.low), UnpackLimb(b.low));
    if (product.high == 0 && product.low < c_limbBase && IsSmallExponent(exponent))
        return PackSmall(isNegative, exponent, product.low);
    Division const limbs = Split(product);
    return Finish({ isNegative, exponent, { limbs.quotient, limbs.remainder } });
}

} // namespace

Finite MultiplyFinite(Finite const& a, Finite const& b) noexcept
{
    return RoundToPrecision(MultiplyToLimbs(a, b));
}

Encoding Multiply(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_limbBits>(a, b))
        return MultiplySmall(a, b);
    if (IsFinite(a) && IsFinite(b))
        return Finish(MultiplyToLimbs(Unpack(a), Unpack(b)));
    return Reference::Multiply(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
