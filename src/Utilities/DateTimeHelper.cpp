#include <Utilities/DateTimeHelper.h>

#include <Exceptions/ArgumentException.h>
#include <Platform/LocalTime.h>

namespace Vek::Framework::Utilities
{

namespace
{

constinit DateTimeHelper::ZeroInitializationTm const c_zero;

constexpr int c_monthsPerYear = 12;
constexpr long long c_lastSecond = 32'535'215'999; // 31 December 3000, 23:59:59: the runtime of Windows ends there

void RequireInRange(long long seconds)
{
    if (seconds < 0 || seconds > c_lastSecond)
        throw ArgumentException();
}

/// Normalises the fields as well.
long long ToSeconds(tm& fields)
{
    long long seconds = 0;
    if (!Platform::TryMakeTime(fields, seconds))
        throw ArgumentException();
    RequireInRange(seconds);
    return seconds;
}

} // namespace

tm const& DateTimeHelper::Zero() noexcept
{
    return c_zero;
}

int DateTimeHelper::CompareTo(tm const& a, tm const& b) noexcept
{
    for (int tm::*const field : { &tm::tm_year, &tm::tm_mon, &tm::tm_mday, &tm::tm_hour, &tm::tm_min, &tm::tm_sec })
        if (a.*field != b.*field)
            return a.*field < b.*field ? -1 : 1;
    return 0;
}

bool DateTimeHelper::Equals(tm const& a, tm const& b) noexcept
{
    return CompareTo(a, b) == 0;
}

tm DateTimeHelper::Add(tm const& value, Duration const& duration)
{
    tm result = value;
    auto const start = static_cast<unsigned long long>(ToSeconds(result));
    auto const seconds = static_cast<unsigned long long>(static_cast<long long>(duration.m_exact));
    auto const reached = static_cast<long long>(start + seconds);
    RequireInRange(reached);
    if (!Platform::TryBreakTime(reached, result))
        throw ArgumentException();
    result.tm_mon += duration.m_months % c_monthsPerYear;
    result.tm_year += duration.m_months / c_monthsPerYear;
    ToSeconds(result);
    return result;
}

} // namespace Vek::Framework::Utilities
