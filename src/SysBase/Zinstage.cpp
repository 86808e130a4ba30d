#include <SysBase/Zinstage.h>

#include <Exceptions/EnumOutOfRangeException.h>

#include <algorithm>

namespace VekSysBase
{

namespace
{

/// Months of 30 days each from the year 0.
int GetDay30(VekDateEx const& date)
{
    return 360 * date.GetYear() + 30 * date.GetMonth() + std::min(date.GetDay(), 30);
}

} // namespace

int Zinstage(VekDateEx const& from, VekDateEx const& to, Zinsmethode method)
{
    switch (method)
    {
    case Zinsmethode::Monate30Jahr360:
        return from.IsValid(true) && to.IsValid(true) ? GetDay30(to) - GetDay30(from) : 0;
    case Zinsmethode::Kalender360:
    case Zinsmethode::Kalender365:
        return VekDateEx::GetDaysBetween(from, to);
    }
    throw Vek::EnumOutOfRangeException();
}

int Zinsjahr(Zinsmethode method)
{
    switch (method)
    {
    case Zinsmethode::Monate30Jahr360:
    case Zinsmethode::Kalender360:
        return 360;
    case Zinsmethode::Kalender365:
        return 365;
    }
    throw Vek::EnumOutOfRangeException();
}

} // namespace VekSysBase
