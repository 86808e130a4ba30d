#pragma once

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

/// The operations as decNumber has them, with 34 digits, half-up and no traps: slow, for every operand. What the quick
/// ways leave out ends here: Infinity and NaN, overflow, subnormal numbers, folded exponents, powers.
namespace Vek::Framework::Utilities::DecimalArithmetic::Reference
{

Encoding Add(Encoding a, Encoding b) noexcept;
Encoding Subtract(Encoding a, Encoding b) noexcept;
Encoding Multiply(Encoding a, Encoding b) noexcept;
Encoding Divide(Encoding a, Encoding b) noexcept;
Encoding Power(Encoding base, Encoding exponent) noexcept;
Encoding Max(Encoding a, Encoding b) noexcept;
Encoding Min(Encoding a, Encoding b) noexcept;
Encoding Minus(Encoding a) noexcept;
Encoding Reduce(Encoding a) noexcept;
Encoding Rescale(Encoding a, int exponent, Rounding rounding) noexcept;

/// Fits a number with any exponent and up to 36 digits into the encoding.
Encoding Fit(Finite const& value) noexcept;

} // namespace Vek::Framework::Utilities::DecimalArithmetic::Reference
