#pragma once

#include <Exceptions/ArgumentException.h>
#include <Utilities/DateTimeComponentInfo.h>
#include <Utilities/Decimal.h>
#include <VekApi.h>

#include <compare>

namespace Vek::Framework::Utilities
{

class Duration;

/// A point on the local wall clock, without time zone or daylight-saving flag; nothing converts it to UTC.
///
/// Shape:  one unsigned 64-bit count of ticks; a plain value, copied freely, safe on any thread.
/// Unit:   1 tick = 100 ns, counted from 1 January 1601, 00:00.
/// Range:  years 1601 to 30827 go in; what comes out are ticks below 2^63 (14 September 30828). Sums of ticks are not
///         checked and wrap around; TryAdd checks.
/// Errors: what names no point in time throws ArgumentException; nothing is changed then.
/// Source: the scale of Win32's FILETIME; Gregorian leap years in every year. The same on every system.
///
/// For sums and differences include Duration.h.
class VEK_API DateTime
{
public:
    enum ComparisonOptions : int
    {
        Exact = 0,
        IgnoreYear = 1, // month, day and time of day to the millisecond
    };

    /// 0 ticks: 1 January 1601.
    constexpr DateTime() noexcept = default;

    /// What the system's clock shows here and now, to the millisecond.
    static DateTime Now();

    /// The start of a second. Throws ArgumentException for fields such as month 13, 30 February, second 60 and a year
    /// before 1601 or after 30827.
    static DateTime FromComponents(short year, unsigned char month, unsigned char day, unsigned char hour,
                                   unsigned char minute, unsigned char second);
    /// The day of the week is not looked at.
    static DateTime FromComponents(DateTimeComponentInfo const& components);
    /// Seconds from 1 January 1970 on the same clock: neither zone nor summer time comes in. Not checked.
    static DateTime FromTimeT(long long const& seconds) noexcept;
    /// The value to store is GetTicks. Throws ArgumentException from 2^63 on.
    static constexpr DateTime FromTicks(unsigned long long ticks)
    {
        if (ticks >> 63U != 0)
            throw ArgumentException();
        return DateTime(ticks);
    }

    /// With the day of the week; what is below a second is dropped. Throws ArgumentException from 2^63 ticks on.
    DateTimeComponentInfo GetComponents() const;
    constexpr unsigned long long GetTicks() const noexcept { return m_ticks; }

    /// By ticks.
    friend constexpr bool operator==(DateTime const& a, DateTime const& b) noexcept = default;
    friend constexpr auto operator<=>(DateTime const& a, DateTime const& b) noexcept = default;

    /// 1 if this is later, 0, or -1. With IgnoreYear, 1 March 2023 is later than 28 February 2024 and 29 February lies
    /// between them; ticks from 2^63 on throw ArgumentException then. Throws EnumOutOfRangeException for other options.
    int CompareTo(DateTime const& other, ComparisonOptions options) const;

    /// The exact part first, rounded half away from zero to ticks, then the months on the calendar: the day becomes the
    /// month's last if there are fewer, so 31 January 2023 and one month is 28 February. A NaN or Infinity moves
    /// nothing. Unless the months are 0, what is below a millisecond is dropped, and ArgumentException is thrown when
    /// the exact part leads to ticks from 2^63 on or the months out of the years 1601 to 30827.
    DateTime operator+(Duration const& duration) const;
    DateTime operator-(Duration const& duration) const;
    /// The same sum, strictly: false, and `result` unchanged, for a NaN or Infinity, for ticks below 0 or from 2^63 on,
    /// for months out of the years 1601 to 30827.
    bool TryAdd(Duration const& duration, DateTime& result) const noexcept;
    /// This - other, negative if this is earlier, exact to the tick and without months; it starts at `other`.
    Duration operator-(DateTime const& other) const;

    /// 28 to 31: the length of `month` (1 to 12) in `year`. Throws ArgumentException for any other month.
    static int GetDaysOfMonth(int month, int year);

    /// The whole calendar months from this to this + seconds, negative if it lies before. Days of the month are
    /// compared, not times of day: from 15 January 10:00 to 15 February 09:00 it is one; from 31 January to 29 February
    /// none. Throws ArgumentException from 2^63 ticks on.
    int GetMonthsForNextSeconds(Decimal seconds) const;
    /// The length in seconds, with seven fraction digits, of the calendar months that follow this + seconds. Throws
    /// ArgumentException as + does.
    Decimal GetDurationInSecondsForNextMonths(int months, Decimal const& seconds) const;

private:
    explicit constexpr DateTime(unsigned long long ticks) noexcept : m_ticks(ticks) {}

    unsigned long long m_ticks = 0;
};

} // namespace Vek::Framework::Utilities
