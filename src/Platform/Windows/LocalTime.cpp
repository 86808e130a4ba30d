#include <Platform/LocalTime.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

bool TryReadLocalClock(ClockFields& fields) noexcept
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    fields = { now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds };
    return true;
}

bool TryMakeTime(tm& fields, long long& seconds) noexcept
{
    seconds = _mktime64(&fields);
    return seconds != -1;
}

bool TryBreakTime(long long seconds, tm& fields) noexcept
{
    __time64_t const time = seconds;
    return _localtime64_s(&fields, &time) == 0;
}

} // namespace Vek::Platform
