#include <Utilities/Internal/DecimalArithmetic/Reference.h>

#include <algorithm>
#include <bit>

extern "C"
{
#include <decimal128.h>
#include <decNumber.h>
}

namespace Vek::Framework::Utilities::DecimalArithmetic::Reference
{

namespace
{

// decNumber clamps what is far out itself, but adds exponents as int.
constexpr int c_exponentLimit = 100'000;

decContext MakeContext(rounding mode = DEC_ROUND_HALF_UP) noexcept
{
    decContext context;
    decContextDefault(&context, DEC_INIT_DECIMAL128);
    context.round = mode;
    return context;
}

decNumber Decode(Encoding encoding) noexcept
{
    static_assert(sizeof(decimal128) == sizeof(Encoding));
    auto const bytes = std::bit_cast<decimal128>(encoding);
    decNumber number;
    decimal128ToNumber(&bytes, &number);
    return number;
}

Encoding Encode(decNumber const& number, decContext& context) noexcept
{
    decimal128 bytes;
    decimal128FromNumber(&bytes, &number, &context);
    return std::bit_cast<Encoding>(bytes);
}

using Unary = decNumber* (*)(decNumber*, decNumber const*, decContext*);
using Binary = decNumber* (*)(decNumber*, decNumber const*, decNumber const*, decContext*);

Encoding Apply(Unary operation, Encoding a) noexcept
{
    decContext context = MakeContext();
    decNumber const operand = Decode(a);
    decNumber result;
    operation(&result, &operand, &context);
    return Encode(result, context);
}

Encoding Apply(Binary operation, Encoding a, Encoding b) noexcept
{
    decContext context = MakeContext();
    decNumber const left = Decode(a);
    decNumber const right = Decode(b);
    decNumber result;
    operation(&result, &left, &right, &context);
    return Encode(result, context);
}

rounding ToNative(Rounding mode) noexcept
{
    switch (mode)
    {
    case Rounding::Up:
        return DEC_ROUND_UP;
    case Rounding::Down:
        return DEC_ROUND_DOWN;
    default:
        return DEC_ROUND_HALF_UP;
    }
}

void AssignUnits(decNumberUnit* units, std::uint64_t limb) noexcept
{
    for (int i = 0; i < c_limbDigits / DECDPUN; ++i, limb /= 1000)
        units[i] = static_cast<decNumberUnit>(limb % 1000);
}

} // namespace

Encoding Add(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberAdd, a, b);
}

Encoding Subtract(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberSubtract, a, b);
}

Encoding Multiply(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberMultiply, a, b);
}

Encoding Divide(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberDivide, a, b);
}

Encoding Power(Encoding base, Encoding exponent) noexcept
{
    return Apply(decNumberPower, base, exponent);
}

Encoding Max(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberMax, a, b);
}

Encoding Min(Encoding a, Encoding b) noexcept
{
    return Apply(decNumberMin, a, b);
}

Encoding Minus(Encoding a) noexcept
{
    return Apply(decNumberMinus, a);
}

Encoding Reduce(Encoding a) noexcept
{
    return Apply(decNumberReduce, a);
}

Encoding Rescale(Encoding a, int exponent, Rounding mode) noexcept
{
    decContext context = MakeContext(ToNative(mode));
    decNumber const operand = Decode(a);
    decNumber target;
    decNumberFromInt32(&target, std::clamp(exponent, -c_exponentLimit, c_exponentLimit));
    decNumber result;
    decNumberRescale(&result, &operand, &target, &context);
    return Encode(result, context);
}

Encoding Fit(Finite const& value) noexcept
{
    static_assert(DECDPUN == 3 && DECNUMUNITS * DECDPUN == 2 * c_limbDigits);
    decContext context = MakeContext();
    decNumber number;
    decNumberZero(&number);
    AssignUnits(number.lsu, value.coefficient.low);
    AssignUnits(number.lsu + c_limbDigits / DECDPUN, value.coefficient.high);
    number.digits = std::max(1, CountDigits(value.coefficient));
    number.exponent = std::clamp(value.exponent, -c_exponentLimit, c_exponentLimit);
    number.bits = value.isNegative ? DECNEG : 0;
    return Encode(number, context);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic::Reference
