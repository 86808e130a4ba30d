#include <SysBase/VekDateConversion.h>

#include <Utilities/Internal/TickCalendar.h>

namespace VekSysBase
{

using namespace Vek::Framework::Utilities::Internal;
using Vek::Framework::Utilities::DateTime;

DateTime ToDateTime(VekDateEx const& value)
{
    if (!value.IsValid(true) || value.GetYear() < c_leastYear || value.GetYear() > c_greatestYear)
        throw Vek::ArgumentException();
    return DateTime::FromTicks(
        GetTicksOfDate({ static_cast<std::uint32_t>(value.GetYear()), static_cast<std::uint32_t>(value.GetMonth()),
                         static_cast<std::uint32_t>(value.GetDay()) }));
}

VekDateEx ToVekDate(DateTime const& value)
{
    if (value.GetTicks() >= c_endOfTicks)
        throw Vek::ArgumentException();
    ShortDate const date = GetDateOfTickDay(Split(value.GetTicks()).day);
    return VekDateEx(static_cast<int>(date.day), static_cast<int>(date.month), static_cast<int>(date.year));
}

std::chrono::year_month_day ToYearMonthDay(VekDateEx const& value)
{
    if (value.GetYear() > static_cast<int>(std::chrono::year::max()))
        throw Vek::ArgumentException();
    return std::chrono::year(value.GetYear()) / std::chrono::month(static_cast<unsigned>(value.GetMonth())) /
           std::chrono::day(static_cast<unsigned>(value.GetDay()));
}

VekDateEx ToVekDate(std::chrono::year_month_day const& value)
{
    int const year = static_cast<int>(value.year());
    if (year < 0)
        throw Vek::ArgumentException();
    return VekDateEx(static_cast<int>(static_cast<unsigned>(value.day())),
                     static_cast<int>(static_cast<unsigned>(value.month())), year);
}

} // namespace VekSysBase
