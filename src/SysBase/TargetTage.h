#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

namespace VekSysBase
{

/// The settlement days of TARGET, the payment system of the euro, by which SEPA payments are due: every day but
/// Saturdays, Sundays, 1 January, Good Friday, Easter Monday, 1 May, 25 and 26 December. Holidays of one country count
/// for nothing.
///
/// The rule is applied to every year. It holds from 2002 on; before that the system closed on other days as well.
/// Nothing throws; the zero date and invalid ones are no settlement days, and what is asked from them is the zero date.

VEK_API bool IsTargetTag(VekDateEx const& date) noexcept;

/// The date itself if it is a settlement day, else the nearest one after it or before it.
VEK_API VekDateEx GetCurrentOrNextTargetTag(VekDateEx const& date) noexcept;
VEK_API VekDateEx GetCurrentOrPreviousTargetTag(VekDateEx const& date) noexcept;

/// The n-th settlement day after the date, or before it for a negative number: 1 is the next one, -1 the previous one.
/// 0 moves nothing, also off a closing day.
VEK_API VekDateEx AddTargetTage(VekDateEx const& date, int number) noexcept;

} // namespace VekSysBase
