// Ticks of 100 ns from 1 January 1601 and the calendar's dates: unsigned, and in 32 bits as soon as days are counted.
#pragma once

#include <Utilities/Internal/CivilCalendar.h>

#include <cstdint>

namespace Vek::Framework::Utilities::Internal
{

constexpr std::uint64_t c_ticksPerMillisecond = 10'000;
constexpr std::uint64_t c_ticksPerSecond = 10'000'000;
constexpr std::uint32_t c_secondsPerDay = 86'400;
constexpr std::uint64_t c_ticksPerDay = c_ticksPerSecond * c_secondsPerDay;

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

/// 0 is Sunday, 6 Saturday. Of fewer than 2^24 days: a remainder is the fraction of a product, times the divisor
/// (Lemire, Kaser and Kurz, "Faster remainder by direct computation", 2019).
constexpr std::uint32_t GetDayOfWeekOfTickDay(std::uint32_t day)
{
    constexpr std::uint32_t seventh = 0xFFFFFFFFU / 7 + 1; // in units of 2^-32
    std::uint32_t const fraction = (day + 1) * seventh;    // 1 January 1601 was a Monday
    return static_cast<std::uint32_t>((std::uint64_t{ fraction } * 7) >> 32U);
}

/// Seconds of a day that exists, from 1 January 1601.
constexpr std::uint64_t GetSecondsOfDate(ShortDate date)
{
    return std::uint64_t{ c_secondsPerDay } * (GetShortDay(date.year, date.month, date.day) - c_firstShortDay);
}

/// The start of a day that exists.
constexpr std::uint64_t GetTicksOfDate(ShortDate date)
{
    return c_ticksPerDay * (GetShortDay(date.year, date.month, date.day) - c_firstShortDay);
}

struct TimeOfDay
{
    std::uint32_t hour;
    std::uint32_t minute;
    std::uint32_t second;
};

/// Of a second of a day. What is left of an hour stays a fraction, in units of 2^-32, and is never far enough above the
/// true one to reach the next second.
constexpr TimeOfDay GetTimeOfDay(std::uint32_t second)
{
    constexpr std::uint64_t low = 0xFFFFFFFF;
    constexpr std::uint64_t hour = low / 3600 + 1;
    std::uint64_t const hours = second * hour;
    std::uint64_t const minutes = (hours & low) * 60;
    std::uint64_t const seconds = (minutes & low) * 60;
    return { static_cast<std::uint32_t>(hours >> 32U), static_cast<std::uint32_t>(minutes >> 32U),
             static_cast<std::uint32_t>(seconds >> 32U) };
}

constexpr std::uint64_t GetTicksOfTime(TimeOfDay const& time)
{
    return c_ticksPerSecond * ((time.hour * 60 + time.minute) * 60 + time.second);
}

} // namespace Vek::Framework::Utilities::Internal
