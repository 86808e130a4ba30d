#pragma once

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// To 34 digits, as decNumber raises it, for -20400 to 20600. They are kept once they were asked for; that may throw
/// std::bad_alloc.
Finite GetPowerOfTwo(int exponent);

} // namespace Vek::Framework::Utilities::DecimalArithmetic
