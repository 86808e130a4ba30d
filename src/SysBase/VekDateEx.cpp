#include <SysBase/VekDateEx.h>

#include <SysBase/Internal/DayNumbers.h>

#include <algorithm>

namespace VekSysBase
{

namespace
{

using namespace Internal;

bool AreValid(VekDateEx const& a, VekDateEx const& b)
{
    return a.IsValid(true) && b.IsValid(true);
}

bool IsLastOfFebruary(VekDateEx const& date)
{
    return date.GetMonth() == 2 && date.GetDay() == date.GetDaysInMonth();
}

/// Where a date stands in its year, for comparisons between years.
int GetPlaceInYear(VekDateEx const& date)
{
    return date.GetMonth() * 32 + date.GetDay();
}

int GetYearsFrom(VekDateEx const& earlier, VekDateEx const& later)
{
    int const years = later.GetYear() - earlier.GetYear();
    return years - (GetPlaceInYear(later) < GetPlaceInYear(earlier) ? 1 : 0);
}

int GetMonthsFrom(VekDateEx const& earlier, VekDateEx const& later)
{
    return 12 * (later.GetYear() - earlier.GetYear()) + later.GetMonth() - earlier.GetMonth() -
           (later.GetDay() < earlier.GetDay() ? 1 : 0);
}

} // namespace

bool VekDateEx::IsValid(bool strict) const noexcept
{
    return (!strict && IsZero()) || (m_day >= 1 && m_day <= GetDaysInMonth());
}

bool VekDateEx::IsLeapYear() const noexcept
{
    return Civil::IsLeapYear(m_year);
}

int VekDateEx::GetDaysInYear() const noexcept
{
    return IsLeapYear() ? 366 : 365;
}

int VekDateEx::GetDaysInMonth() const noexcept
{
    return Civil::GetDaysInMonth(m_month, m_year);
}

bool VekDateEx::IsDateBetween(VekDateEx const& from, VekDateEx const& to, bool inclusive) const noexcept
{
    if (!IsValid(true))
        return false;
    if (inclusive && (*this == from || *this == to))
        return true;
    if (from.IsZero())
        return *this < to;
    if (to.IsZero())
        return *this >= from;
    return std::min(from, to) < *this && *this < std::max(from, to);
}

int VekDateEx::GetDayOfYear() const noexcept
{
    return Internal::GetDayOfYear(m_day, m_month, m_year);
}

int VekDateEx::GetDayOfWeekInt() const noexcept
{
    return Civil::GetDayOfWeek(GetDayNumber(*this));
}

DayOfWeek VekDateEx::GetDayOfWeek() const noexcept
{
    return static_cast<DayOfWeek>((GetDayOfWeekInt() + 6) % 7);
}

int VekDateEx::Compare(VekDateEx const& a, VekDateEx const& b) noexcept
{
    if (a.m_year != b.m_year)
        return a.m_year < b.m_year ? -1 : 1;
    if (a.m_month != b.m_month)
        return a.m_month < b.m_month ? -1 : 1;
    return a.m_day - b.m_day;
}

void VekDateEx::AddDays(int days) noexcept
{
    if (days != 0) // which would make an invalid date valid
        *this = GetDate(GetDayNumber(*this) + days);
}

void VekDateEx::AddMonths(int months) noexcept
{
    if (months == 0)
        return;
    long long const index = m_month - 1LL + months; // from January of this year
    long long const year = m_year + Civil::FloorDivide(index, 12);
    int const month = static_cast<int>(Civil::FloorModulo(index, 12)) + 1;
    *this = VekDateEx(std::min<int>(m_day, Civil::GetDaysInMonth(month, year)), month, static_cast<int>(year & 0xFFFF));
}

VekDateEx VekDateEx::GetYearBefore() const noexcept
{
    long long const year = m_year - 1LL;
    int const day = IsLastOfFebruary(*this) ? Civil::GetDaysInMonth(2, year) : m_day;
    return VekDateEx(day, m_month, static_cast<int>(year & 0xFFFF));
}

VekDateEx VekDateEx::DayInYearToDate(int dayOfYear, int year) noexcept
{
    if (dayOfYear < 0 || dayOfYear > (Civil::IsLeapYear(year) ? 366 : 365))
        return VekDateEx();
    if (dayOfYear == 0)
        return VekDateEx(0, 1, year);
    return GetDate(Civil::GetDayNumber(year, 1, dayOfYear));
}

int VekDateEx::GetDaysBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    return AreValid(a, b) ? static_cast<int>(GetDayNumber(b) - GetDayNumber(a)) : 0;
}

int VekDateEx::GetMonthsBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    if (!AreValid(a, b) || a == b)
        return 0;
    return a < b ? GetMonthsFrom(a, b) : -GetMonthsFrom(b, a);
}

int VekDateEx::GetYearsBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    if (!AreValid(a, b))
        return 0;
    return a < b ? GetYearsFrom(a, b) : -GetYearsFrom(b, a);
}

bool VekDateEx::IsOneYearBetween(VekDateEx const& a, VekDateEx const& b) noexcept
{
    if (!AreValid(a, b))
        return false;
    bool const isLeapDay = a.m_month == 2 && a.m_day == 29;
    long long const yearLater = Civil::GetDayNumber(a.m_year + 1LL, a.m_month, isLeapDay ? 28 : a.m_day);
    return GetDayNumber(b) + 1 == yearLater;
}

unsigned int VekDateEx::ConvertMonatToQuartal(unsigned int month) noexcept
{
    return month >= 1 && month <= 12 ? (month - 1) / 3 + 1 : 0;
}

unsigned int VekDateEx::ConvertQuartalToMonat(unsigned int quarter) noexcept
{
    return quarter >= 1 && quarter <= 4 ? 3 * quarter - 2 : 0;
}

unsigned int VekDateEx::GetMonatsbeginnVonQuartal(unsigned int quarter) noexcept
{
    return quarter >= 1 && quarter <= 4 ? 3 * quarter - 2 : 1;
}

unsigned int VekDateEx::GetMonatsendeVonQuartal(unsigned int quarter) noexcept
{
    return quarter >= 1 && quarter <= 4 ? 3 * quarter : 12;
}

} // namespace VekSysBase
