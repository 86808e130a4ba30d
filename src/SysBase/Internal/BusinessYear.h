// Every year there can be, day by day: which days are holidays and which are free for whom.
#pragma once

#include <SysBase/Internal/Easter.h>

#include <Utilities/Internal/CivilCalendar.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace VekSysBase::Internal
{

/// The sets of days that a year is asked for.
enum class FreeDays : unsigned char
{
    Feiertag,    // the thirteen holidays
    Werktag,     // and weekends
    Bankwerktag, // and 24 December
    Target,      // weekends and the six closing days of TARGET
};

/// A set of days of one year; day 0 is 1 January. It is kept as what it is asked for: how many there are before a day.
class DaySet
{
public:
    /// Of the days that `days` is true for.
    constexpr explicit DaySet(std::array<bool, 366> const& days)
    {
        for (std::size_t i = 0; i < days.size(); ++i)
            m_before[i + 1] = static_cast<std::uint8_t>(m_before[i] + (days[i] ? 1 : 0));
    }
    constexpr DaySet() = default;

    constexpr bool Contains(int day) const { return CountBefore(day) != CountBefore(day + 1); }

    /// How many of the days before `day`, which may be the day behind the year's last.
    constexpr int CountBefore(int day) const { return m_before[static_cast<std::size_t>(day)]; }

private:
    std::array<std::uint8_t, 367> m_before{};
};

/// What the date of Easter and the leap day make of a year: they settle all weekdays, so there are only 70 years.
struct BusinessYear
{
    int length = 365;
    std::array<DaySet, 4> sets{};

    constexpr DaySet const& Get(FreeDays kind) const { return sets[static_cast<std::size_t>(kind)]; }
};

extern std::array<BusinessYear, 2 * c_easterDays> const c_businessYears;

inline BusinessYear const& GetBusinessYear(long long year)
{
    namespace Civil = Vek::Framework::Utilities::Internal;
    // Easter repeats after 5,700,000 years: 19 years of the moon, 30 dates of its fullness, centuries, weekdays.
    bool const isNear = year >= 0 && year <= 0xFFFF;
    auto const easterYear = static_cast<unsigned int>(isNear ? year : Civil::FloorModulo(year, 5'700'000));
    return c_businessYears[GetEaster(easterYear) + (Civil::IsLeapYear(year) ? c_easterDays : 0)];
}

} // namespace VekSysBase::Internal
