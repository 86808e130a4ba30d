#include <Platform/LocalTime.h>

#include <algorithm>

namespace Vek::Platform
{

bool TryReadLocalClock(ClockFields& fields) noexcept
{
    timespec now{};
    tm local{};
    if (clock_gettime(CLOCK_REALTIME, &now) != 0 || localtime_r(&now.tv_sec, &local) == nullptr)
        return false;
    int const second = std::min(local.tm_sec, 59); // zones that count leap seconds show 60
    fields = { local.tm_year + 1900,
               local.tm_mon + 1,
               local.tm_mday,
               local.tm_hour,
               local.tm_min,
               second,
               static_cast<int>(now.tv_nsec / 1'000'000) };
    return true;
}

bool TryMakeTime(tm& fields, long long& seconds) noexcept
{
    seconds = mktime(&fields);
    return seconds != -1;
}

bool TryBreakTime(long long seconds, tm& fields) noexcept
{
    time_t const time = seconds;
    return localtime_r(&time, &fields) != nullptr;
}

} // namespace Vek::Platform
