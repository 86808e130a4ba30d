#include <SysBase/Heute.h>

#include <Platform/LocalTime.h>

namespace VekSysBase
{

VekDateEx Heute() noexcept
{
    Vek::Platform::ClockFields now{};
    return Vek::Platform::TryReadLocalClock(now) ? VekDateEx(now.day, now.month, now.year) : VekDateEx();
}

} // namespace VekSysBase
