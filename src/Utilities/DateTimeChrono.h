#pragma once

#include <Utilities/DateTime.h>

#include <chrono>
#include <ratio>

namespace Vek::Framework::Utilities
{

/// Ticks of 100 ns on the local clock, as std::chrono counts them: from 1 January 1970.
using LocalTicks = std::chrono::local_time<std::chrono::duration<long long, std::ratio<1, 10'000'000>>>;

/// 1 January 1970.
constexpr unsigned long long c_ticksOfLocalEpoch = 116'444'736'000'000'000;

/// Throws ArgumentException from 2^63 ticks on.
constexpr LocalTicks ToLocalTime(DateTime const& value)
{
    unsigned long long const ticks = DateTime::FromTicks(value.GetTicks()).GetTicks(); // which throws
    return LocalTicks(LocalTicks::duration(static_cast<long long>(ticks - c_ticksOfLocalEpoch)));
}

/// Throws ArgumentException before 1 January 1601 and for what leads to 2^63 ticks or more.
constexpr DateTime ToDateTime(LocalTicks value)
{
    // Counts before 1601 wrap around to 2^63 and more.
    return DateTime::FromTicks(static_cast<unsigned long long>(value.time_since_epoch().count()) + c_ticksOfLocalEpoch);
}

} // namespace Vek::Framework::Utilities
