#pragma once

#include <Utilities/Decimal.h>

namespace Vek::Framework::Utilities
{

/// A quiet or signalling NaN. The comparisons call it equal to everything, so nothing else finds it.
VEK_API bool IsNaN(Decimal const& value) noexcept;
/// The Infinity of either sign.
VEK_API bool IsInfinite(Decimal const& value) noexcept;
/// A number: neither of the above.
VEK_API bool IsFinite(Decimal const& value) noexcept;

} // namespace Vek::Framework::Utilities
