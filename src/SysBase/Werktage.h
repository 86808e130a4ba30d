#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

namespace VekSysBase
{

/// Working days counted one by one, as people mean it by "in 3 Bankwerktagen". VekDateEnv says which days those are;
/// its GetNextWerktag counts by another rule. Nothing throws; a year costs one step.

/// False for the zero date and for invalid ones.
VEK_API bool IsWerktag(VekDateEx const& date) noexcept;
VEK_API bool IsBankwerktag(VekDateEx const& date) noexcept;

/// The n-th working day after the date, or before it for a negative number; the date itself does not count. 0 moves
/// nothing, also off a free day. The zero date for the zero date and for invalid ones.
VEK_API VekDateEx AddWerktage(VekDateEx const& date, int number) noexcept;
VEK_API VekDateEx AddBankwerktage(VekDateEx const& date, int number) noexcept;

/// How many working days there are from `a`, which is not counted, to `b`, which is. If `b` is the earlier one, the
/// same from `b` to `a`, as a negative number. 0 if either is zero or invalid.
VEK_API int GetWerktageBetween(VekDateEx const& a, VekDateEx const& b) noexcept;
VEK_API int GetBankwerktageBetween(VekDateEx const& a, VekDateEx const& b) noexcept;

} // namespace VekSysBase
