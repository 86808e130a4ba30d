#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

namespace VekSysBase
{

/// A calendar week of ISO 8601, from Monday to Sunday. Week 1 is the one that holds 4 January, so the last days of
/// December may lie in week 1 of the next year, and the first of January in week 52 or 53 of the year before: the
/// week's year is not the date's.
struct Kalenderwoche
{
    int year = 0; // 0 to 65535, and the neighbours of both
    int week = 0; // 1 to 53; 0 is no week

    friend constexpr bool operator==(Kalenderwoche const&, Kalenderwoche const&) noexcept = default;
};

/// No week (0 of year 0) for the zero date and for invalid ones.
VEK_API Kalenderwoche GetKalenderwoche(VekDateEx const& date) noexcept;

/// The day of that week. The zero date for a week that the year does not have, a day of the week that there is not, and
/// a date outside the years 0 to 65535.
VEK_API VekDateEx GetDateInKalenderwoche(Kalenderwoche const& week, DayOfWeek dayOfWeek) noexcept;

/// 52 or 53.
VEK_API int GetKalenderwochenInYear(int year) noexcept;

} // namespace VekSysBase
