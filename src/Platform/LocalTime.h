#pragma once

#include <ctime>

namespace Vek::Platform
{

/// What the clock on the wall shows.
struct ClockFields
{
    int year;
    int month; // 1 to 12
    int day;
    int hour;
    int minute;
    int second; // 0 to 59
    int millisecond;
};

/// The system's current local time; false when the system has no idea.
bool TryReadLocalClock(ClockFields& fields) noexcept;

/// Local fields to seconds from 1970 in UTC by the rules of the zone; the fields are put into their ranges. False when
/// the runtime refuses. Which years it takes differs between systems.
bool TryMakeTime(tm& fields, long long& seconds) noexcept;

/// The reverse. Which seconds it takes differs between systems; those of the years 1970 to 3000 all do.
bool TryBreakTime(long long seconds, tm& fields) noexcept;

} // namespace Vek::Platform
