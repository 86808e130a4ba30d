// Business dates as days counted from 1 January 1970, and back.
#pragma once

#include <SysBase/VekDateEx.h>
#include <Utilities/Internal/CivilCalendar.h>

namespace VekSysBase::Internal
{

namespace Civil = Vek::Framework::Utilities::Internal;

/// 1 is 1 January. A month outside 1 to 12 counts on by the same rule.
constexpr int GetDayOfYear(int day, int month, long long year)
{
    int const isLater = (month + 10) / 13; // 1 from March on
    return day + (month + 2) * 611 / 20 - 2 * isLater - 91 + (Civil::IsLeapYear(year) ? isLater : 0);
}

inline long long GetDayNumber(VekDateEx const& date)
{
    return Civil::GetDayNumber(date.GetYear(), 1, GetDayOfYear(date.GetDay(), date.GetMonth(), date.GetYear()));
}

/// A year outside 0 to 65535 keeps its low 16 bits.
inline VekDateEx GetDate(long long dayNumber)
{
    Civil::CivilDate const date = Civil::GetCivilDate(dayNumber);
    return VekDateEx(date.day, date.month, static_cast<int>(date.year & 0xFFFF));
}

} // namespace VekSysBase::Internal
