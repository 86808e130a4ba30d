#pragma once

#include <Utilities/DateTime.h>

#include <cstddef>
#include <functional>

/// Agrees with ==. The same value on every run, so attackers may choose keys. There is none for Duration: its equality
/// may throw, and by it a NaN equals everything.
template <>
struct std::hash<Vek::Framework::Utilities::DateTime>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::DateTime const& value) const noexcept;
};
