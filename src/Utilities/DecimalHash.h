#pragma once

#include <Utilities/Decimal.h>

#include <cstddef>
#include <functional>

/// Agrees with ==: 1.5 and 1.50 hash alike, 0 and -0 do. The same value on every run, so attackers may choose keys.
///
/// Every NaN has one hash, but == says that a NaN equals everything, which no hash can follow: keep NaN out of keys
/// (IsNaN in DecimalClassification.h).
template <>
struct std::hash<Vek::Framework::Utilities::Decimal>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::Decimal const& value) const noexcept;
};
