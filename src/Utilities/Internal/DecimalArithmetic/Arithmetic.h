#pragma once

#include <Utilities/Internal/DecimalArithmetic/Addition.h>
#include <Utilities/Internal/DecimalArithmetic/Reference.h>

/// The operations of Decimal on encodings. Each has a quick way for finite numbers and plain exponents, and answers
/// what Reference answers, bit for bit, for every canonical operand.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

Encoding Multiply(Encoding a, Encoding b) noexcept;
Encoding Divide(Encoding a, Encoding b) noexcept;
Encoding Minus(Encoding a) noexcept;
Encoding Max(Encoding a, Encoding b) noexcept;
Encoding Min(Encoding a, Encoding b) noexcept;

/// -1, 0 or 1; 0 with a NaN.
int Compare(Encoding a, Encoding b) noexcept;

/// Rounds or pads to the exponent; a NaN when that takes more than 34 digits.
Encoding Rescale(Encoding a, int exponent, Rounding rounding) noexcept;

/// Takes the zeros off the end of the digits.
Encoding Reduce(Encoding a) noexcept;

/// The number half away from zero as a whole one: sign and magnitude modulo 2^64. An Infinity, a NaN and what takes
/// more than 34 digits is 0.
struct Whole
{
    bool isNegative;
    bool exceedsUInt64;
    std::uint64_t magnitude;
};
Whole ToWhole(Encoding a) noexcept;
Whole ToWhole(Finite const& value) noexcept;

/// Half-up, from up to 36 digits; the exponent goes unchecked.
Finite RoundToPrecision(Finite value) noexcept;

/// Rounds to 34 digits and encodes: any exponent, up to 36 digits. When digits were cut off behind these, nothing is
/// lost, since half-up looks at one more digit only.
Encoding FinishLarge(Finite const& value) noexcept;

inline Encoding Finish(Finite const& value) noexcept
{
    bool const fits = value.coefficient.high < c_upperLimit;
    return fits && IsPlainExponent(value.exponent) ? Pack(value) : FinishLarge(value);
}

/// Rounded to 34 digits; the exponent goes unchecked.
Finite MultiplyByLimb(Finite const& a, std::uint64_t limb) noexcept;
Finite MultiplyFinite(Finite const& a, Finite const& b) noexcept;

/// As Decimal's constructor and ToDouble describe. The powers of two are kept once they were asked for; that may throw
/// std::bad_alloc.
Encoding FromDouble(double value);
double ToDouble(Encoding a);

} // namespace Vek::Framework::Utilities::DecimalArithmetic
