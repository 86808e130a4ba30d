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

/// A set of days of one year; day 0 is 1 January. It is kept as what it is asked for: how many there are before a day,
/// and which days are left.
class DaySet
{
public:
    /// Of the days that `days` is true for.
    constexpr explicit DaySet(std::array<bool, 366> const& days)
    {
        for (std::size_t i = 0; i < days.size(); ++i)
        {
            m_before[i + 1] = static_cast<std::uint8_t>(m_before[i] + (days[i] ? 1 : 0));
            if (!days[i])
                m_beforeOutside[i - m_before[i]] = m_before[i];
        }
    }
    constexpr DaySet() = default;

    constexpr bool Contains(int day) const { return CountBefore(day) != CountBefore(day + 1); }

    /// How many of the days before `day`, which may be the day behind the year's last.
    constexpr int CountBefore(int day) const { return m_before[static_cast<std::size_t>(day)]; }

    /// How many of them are not in the set.
    constexpr int CountOutsideBefore(int day) const { return day - CountBefore(day); }
    /// The n-th day that is not in the set, from 0.
    constexpr int GetOutside(int n) const { return n + m_beforeOutside[static_cast<std::size_t>(n)]; }

private:
    std::array<std::uint8_t, 367> m_before{};
    std::array<std::uint8_t, 366> m_beforeOutside{}; // days of the set before the n-th day outside
};

/// What the date of Easter and the leap day make of a year: they settle all weekdays, so there are only 70 years.
struct BusinessYear
{
    int length = 365;
    std::array<DaySet, 4> sets{};

    constexpr DaySet const& Get(FreeDays kind) const { return sets[static_cast<std::size_t>(kind)]; }
};

extern std::array<BusinessYear, 2 * c_easterDays> const c_businessYears;

/// Which of them a year is.
constexpr std::uint8_t GetBusinessYearIndex(long long year)
{
    namespace Civil = Vek::Framework::Utilities::Internal;
    // Easter repeats after 5,700,000 years: 19 years of the moon, 30 dates of its fullness, centuries, weekdays.
    auto const easterYear = static_cast<unsigned int>(Civil::FloorModulo(year, 5'700'000));
    return static_cast<std::uint8_t>(GetEaster(easterYear) + (Civil::IsLeapYear(year) ? c_easterDays : 0));
}

/// The years that people ask for, to the end of a cycle of 400 years.
constexpr int c_firstKnownYear = 1600;
constexpr std::size_t c_knownYears = 800;

constexpr auto c_businessYearIndices = []
{
    std::array<std::uint8_t, c_knownYears> indices{};
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = GetBusinessYearIndex(c_firstKnownYear + static_cast<int>(i));
    return indices;
}();

/// GetBusinessYear of any year.
BusinessYear const& GetDistantBusinessYear(long long year);

inline BusinessYear const& GetBusinessYear(long long year)
{
    auto const known = static_cast<unsigned long long>(year) - c_firstKnownYear;
    return known < c_knownYears ? c_businessYears[c_businessYearIndices[known]] : GetDistantBusinessYear(year);
}

} // namespace VekSysBase::Internal
