#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

namespace VekSysBase
{

/// How days are counted for interest: by months of 30 days or by the calendar, and by which year they are divided.
enum class Zinsmethode : int
{
    Monate30Jahr360 = 0, ///< 30E/360: the 31st counts as the 30th; the end of February stays as it is
    Kalender360 = 1,     ///< act/360, which euro money markets use
    Kalender365 = 2,     ///< act/365, also in leap years
};

/// The days from `from`, which is not counted, to `to`, which is; negative if `to` is the earlier one. 0 if either is
/// zero or invalid. Throws EnumOutOfRangeException for another method.
VEK_API int Zinstage(VekDateEx const& from, VekDateEx const& to, Zinsmethode method);

/// The days of the year that goes with the method: 360 or 365. Interest is amount * rate * Zinstage / Zinsjahr.
/// Throws EnumOutOfRangeException for another method.
VEK_API int Zinsjahr(Zinsmethode method);

} // namespace VekSysBase
