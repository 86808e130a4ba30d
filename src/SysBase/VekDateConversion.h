#pragma once

#include <SysBase/VekDateEx.h>
#include <Utilities/DateTime.h>
#include <VekApi.h>

#include <chrono>

namespace VekSysBase
{

/// Midnight of the day. Throws ArgumentException for the zero date, for another invalid date, and for a year that
/// DateTime does not have (before 1601, after 30827).
VEK_API Vek::Framework::Utilities::DateTime ToDateTime(VekDateEx const& value);

/// The day without its time. Throws ArgumentException from 2^63 ticks on.
VEK_API VekDateEx ToVekDate(Vek::Framework::Utilities::DateTime const& value);

/// Field by field, so that invalid dates come back as well and the zero date is 0/0/0; ask ok() there and IsValid here.
/// Throws ArgumentException for a year above 32767.
VEK_API std::chrono::year_month_day ToYearMonthDay(VekDateEx const& value);

/// Throws ArgumentException for a year before 0.
VEK_API VekDateEx ToVekDate(std::chrono::year_month_day const& value);

} // namespace VekSysBase
