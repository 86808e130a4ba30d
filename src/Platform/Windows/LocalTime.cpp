#include <Platform/LocalTime.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

bool TryReadLocalClock(ClockFields& fields) noexcept
{
    // GetLocalTime would answer the last tick of the system's timer, and it takes longer.
    FILETIME universal;
    GetSystemTimePreciseAsFileTime(&universal);
    FILETIME local;
    SYSTEMTIME now;
    if (FileTimeToLocalFileTime(&universal, &local) == 0 || FileTimeToSystemTime(&local, &now) == 0)
        return false;
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
