#include <SysBase/Werktage.h>

#include <SysBase/Internal/BusinessDays.h>
#include <SysBase/TargetTage.h>

namespace VekSysBase
{

namespace
{

using namespace Internal;

bool IsOutside(FreeDays kind, VekDateEx const& date)
{
    YearDay day;
    return TryGetYearDay(date, day) && !Contains(kind, day);
}

VekDateEx FindOutside(FreeDays kind, VekDateEx const& date, int direction)
{
    YearDay day;
    return TryGetYearDay(date, day) ? GetDate(FindOutside(kind, day, direction)) : VekDateEx();
}

int CountOutsideBetween(FreeDays kind, VekDateEx const& a, VekDateEx const& b)
{
    int const days = VekDateEx::GetDaysBetween(a, b);
    if (days < 0)
        return -CountOutsideBetween(kind, b, a);
    return days == 0 ? 0 : days - static_cast<int>(Count(kind, Add(GetYearDay(a), 1), days));
}

} // namespace

bool IsWerktag(VekDateEx const& date) noexcept
{
    return IsOutside(FreeDays::Werktag, date);
}

bool IsBankwerktag(VekDateEx const& date) noexcept
{
    return IsOutside(FreeDays::Bankwerktag, date);
}

VekDateEx AddWerktage(VekDateEx const& date, int number) noexcept
{
    return AddOutside(FreeDays::Werktag, date, number);
}

VekDateEx AddBankwerktage(VekDateEx const& date, int number) noexcept
{
    return AddOutside(FreeDays::Bankwerktag, date, number);
}

int GetWerktageBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    return CountOutsideBetween(FreeDays::Werktag, a, b);
}

int GetBankwerktageBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    return CountOutsideBetween(FreeDays::Bankwerktag, a, b);
}

bool IsTargetTag(VekDateEx const& date) noexcept
{
    return IsOutside(FreeDays::Target, date);
}

VekDateEx GetCurrentOrNextTargetTag(VekDateEx const& date) noexcept
{
    return FindOutside(FreeDays::Target, date, 1);
}

VekDateEx GetCurrentOrPreviousTargetTag(VekDateEx const& date) noexcept
{
    return FindOutside(FreeDays::Target, date, -1);
}

VekDateEx AddTargetTage(VekDateEx const& date, int number) noexcept
{
    return AddOutside(FreeDays::Target, date, number);
}

} // namespace VekSysBase
