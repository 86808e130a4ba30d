// Ticks of 100 ns from 1 January 1601 and the calendar's dates: unsigned, and in 32 bits as soon as days are counted.
#pragma once

#include <Utilities/Internal/CivilCalendar.h>

#include <cstdint>

namespace Vek::Framework::Utilities::Internal
{

constexpr std::uint64_t c_ticksPerMillisecond = 10'000;
constexpr std::uint64_t c_ticksPerSecond = 10'000'000;
constexpr std::uint64_t c_ticksPerDay = 864'000'000'000;

/// What the fields of a date may be. Ticks reach into the year after the last one.
constexpr int c_leastYear = 1601;
constexpr int c_greatestYear = 30827;

/// Ticks from here on are no point in time.
constexpr std::uint64_t c_endOfTicks = std::uint64_t{ 1 } << 63U;

/// 1 January 1601 counted as CivilCalendar.h counts short days.
constexpr std::uint32_t c_firstShortDay = GetShortDay(c_leastYear, 1, 1);

struct SplitTicks
{
    std::uint32_t day; // from 1 January 1601
    std::uint64_t ticksOfDay;
};

constexpr SplitTicks Split(std::uint64_t ticks)
{
    std::uint64_t const day = ticks / c_ticksPerDay;
    return { static_cast<std::uint32_t>(day), ticks - day * c_ticksPerDay };
}

constexpr ShortDate GetDateOfTickDay(std::uint32_t day)
{
    return GetShortDate(day + c_firstShortDay);
}

/// 0 is Sunday, 6 Saturday.
constexpr std::uint32_t GetDayOfWeekOfTickDay(std::uint32_t day)
{
    return (day + 1) % 7; // 1 January 1601 was a Monday
}

/// The start of a day that exists.
constexpr std::uint64_t GetTicksOfDate(ShortDate date)
{
    return c_ticksPerDay * (GetShortDay(date.year, date.month, date.day) - c_firstShortDay);
}

} // namespace Vek::Framework::Utilities::Internal
