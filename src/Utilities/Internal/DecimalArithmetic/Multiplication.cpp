#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>

#include <algorithm>
#include <array>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

using Platform::UInt128;

/// Four limbs of eighteen digits, the lowest first.
using Product = std::array<std::uint64_t, 4>;

/// By 10^18, for dividends below 2^123. The high word of a product is the quotient or one less: the dividend's lowest
/// bits are left out, and the factor 2^123 / 10^18 is rounded down.
Division Split(UInt128 value) noexcept
{
    constexpr unsigned leftOut = 59;
    constexpr std::uint64_t factor = 10'633'823'966'279'326'983U;
    std::uint64_t const top = value.high << (64U - leftOut) | value.low >> leftOut;
    std::uint64_t const quotient = Platform::Multiply(top, factor).high;
    std::uint64_t const remainder = value.low - quotient * c_limbBase; // below twice the base, so the low words will do
    return remainder < c_limbBase ? Division{ quotient, remainder } : Division{ quotient + 1, remainder - c_limbBase };
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

/// A product without its lowest digits. What is left must fit two limbs.
struct CutProduct
{
    Coefficient value;
    bool isHalfOrMore; // what was dropped
};

CutProduct Cut(Product const& product, int count) noexcept
{
    std::size_t const first = static_cast<std::size_t>(count / c_limbDigits);
    int const rest = count % c_limbDigits;
    if (rest == 0)
        return { { product[first + 1], product[first] }, first != 0 && product[first - 1] >= c_limbBase / 2 };
    Division const low = DivideByPowerOfTen(product[first], rest);
    Division const high = DivideByPowerOfTen(product[first + 1], rest);
    std::uint64_t const next = first + 2 < product.size() ? product[first + 2] : 0;
    std::uint64_t const power = GetPowerOfTen(c_limbDigits - rest);
    return { { high.quotient + next * power, low.quotient + high.remainder * power },
             low.remainder >= GetPowerOfTen(rest) / 2 };
}

Finite RoundProduct(bool isNegative, int exponent, Product const& product) noexcept
{
    int const count = std::max(0, CountDigits(product) - c_precision);
    CutProduct const cut = Cut(product, count);
    Finite result{ isNegative, exponent + count, Add(cut.value, { 0, cut.isHalfOrMore ? 1U : 0U }) };
    return result.coefficient.high < c_upperLimit ? result : RoundToPrecision(result);
}

/// The first 36 digits, for what decNumber has to fit.
Finite CutToLimbs(bool isNegative, int exponent, Product const& product) noexcept
{
    int const count = std::max(0, CountDigits(product) - 2 * c_limbDigits);
    return { isNegative, exponent + count, Cut(product, count).value };
}

Encoding MultiplyLarge(Finite const& a, Finite const& b) noexcept
{
    bool const isNegative = a.isNegative != b.isNegative;
    int const exponent = a.exponent + b.exponent;
    Product const product = MultiplyExactly(a.coefficient, b.coefficient);
    Finite const rounded = RoundProduct(isNegative, exponent, product);
    return IsPlainExponent(rounded.exponent) ? Pack(rounded)
                                             : Reference::Fit(CutToLimbs(isNegative, exponent, product));
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

Finite MultiplyByLimb(Finite const& a, std::uint64_t limb) noexcept
{
    Division const lowest = Split(Platform::Multiply(a.coefficient.low, limb));
    Division const upper = Split(Add(Platform::Multiply(a.coefficient.high, limb), lowest.quotient));
    return RoundProduct(a.isNegative, a.exponent, { lowest.remainder, upper.remainder, upper.quotient, 0 });
}

Finite MultiplyFinite(Finite const& a, Finite const& b) noexcept
{
    return RoundProduct(a.isNegative != b.isNegative, a.exponent + b.exponent,
                        MultiplyExactly(a.coefficient, b.coefficient));
}

Encoding Multiply(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_limbBits>(a, b))
        return MultiplySmall(a, b);
    if (IsFinite(a) && IsFinite(b))
        return MultiplyLarge(Unpack(a), Unpack(b));
    return Reference::Multiply(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
