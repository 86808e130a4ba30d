#pragma once

#include <Utilities/Decimal.h>

#include <bit>
#include <cstdint>

extern "C"
{
#include <decimal128.h>
#include <decNumber.h>
}

/// The operations of Decimal written down with decNumber alone: decode, operate, encode.
namespace Plain
{

using Vek::Framework::Utilities::Decimal;

inline decContext MakeContext(rounding mode = DEC_ROUND_HALF_UP)
{
    decContext context;
    decContextDefault(&context, DEC_INIT_DECIMAL128);
    context.round = mode;
    return context;
}

inline decNumber Decode(Decimal const& value)
{
    auto const bytes = std::bit_cast<decimal128>(value);
    decNumber number;
    decimal128ToNumber(&bytes, &number);
    return number;
}

inline Decimal Encode(decNumber const& number, rounding mode = DEC_ROUND_HALF_UP)
{
    decContext context = MakeContext(mode);
    decimal128 bytes;
    decimal128FromNumber(&bytes, &number, &context);
    return std::bit_cast<Decimal>(bytes);
}

inline std::string Print(Decimal const& value)
{
    auto const bytes = std::bit_cast<decimal128>(value);
    char text[DECIMAL128_String];
    return decimal128ToString(&bytes, text);
}

inline Decimal Scan(std::string const& text)
{
    decContext context = MakeContext();
    decNumber number;
    decNumberFromString(&number, text.c_str(), &context);
    return Encode(number);
}

inline bool HasSameBits(Decimal const& a, Decimal const& b)
{
    return std::memcmp(&a, &b, sizeof(Decimal)) == 0;
}

/// The same value as decNumber writes it: not every pattern of bits is written by anybody.
inline Decimal Rewrite(Decimal const& value)
{
    return Encode(Decode(value));
}

using Binary = decNumber* (*)(decNumber*, decNumber const*, decNumber const*, decContext*);

template <class Operation, class... Operands>
Decimal Apply(Operation operation, Operands const&... operands)
{
    decContext context = MakeContext();
    decNumber result;
    auto const apply = [&](auto const&... numbers) { operation(&result, &numbers..., &context); };
    apply(Decode(operands)...);
    return Encode(result);
}

inline int Compare(Decimal const& a, Decimal const& b)
{
    decNumber const result = Decode(Apply(decNumberCompare, a, b));
    return decNumberIsNaN(&result) || decNumberIsZero(&result) ? 0 : decNumberIsNegative(&result) ? -1 : 1;
}

inline decNumber Rescale(decNumber const& number, int exponent, rounding mode = DEC_ROUND_HALF_UP)
{
    decContext context = MakeContext(mode);
    decNumber target;
    decNumberFromInt32(&target, exponent);
    decNumber result;
    decNumberRescale(&result, &number, &target, &context);
    return result;
}

/// The digits three by three, without a range check.
inline std::uint64_t GetMagnitude(decNumber const& number)
{
    std::uint64_t sum = 0;
    std::uint64_t power = 1;
    if (!decNumberIsSpecial(&number))
        for (int i = 0; i * DECDPUN < number.digits; ++i, power *= 1000)
            sum += number.lsu[i] * power;
    return sum;
}

} // namespace Plain
