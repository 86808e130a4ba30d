#pragma once

#include <Utilities/DateTime.h>
#include <Utilities/Decimal.h>
#include <Utilities/Nullable.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// A span of time in two parts that are kept apart: exact seconds and whole calendar months; perhaps with its start.
///
/// Shape:   an optional DateTime, a Decimal, an int; a plain value, copied freely, safe on any thread.
/// Units:   wherever a fixed length is asked for, a month has 30 days and a year twelve of them.
/// Start:   with one, months are measured on the calendar after it, so that from 31 January 2024 one month is 29 days;
///          without one they are measured by their fixed length.
/// Errors:  the exact part follows Decimal: nothing is thrown, NaN and Infinity go on. Months beyond the range of int
///          wrap around. With a start and months, ArgumentException passes through from DateTime. A unit outside the
///          list throws EnumOutOfRangeException.
class VEK_API Duration
{
public:
    enum Unit : int
    {
        Years = 0,  // 31,104,000 seconds
        Months = 1, // 2,592,000 seconds
        Weeks = 2,
        Days = 3,
        Hours = 4,
        Minutes = 5,
        Seconds = 6,
    };

    /// A start that may be absent.
    class DateTimeHolder
    {
    public:
        explicit DateTimeHolder(Nullable<DateTime> const& value)
            : m_hasValue(value.HasValue()),
              m_value(m_hasValue ? value.GetValue() : DateTime())
        {
        }

        /// Null when there is none; valid as long as this object.
        DateTime const* Get() const noexcept { return m_hasValue ? &m_value : nullptr; }

    private:
        bool m_hasValue;
        DateTime m_value;
    };

    /// No start, 0 seconds, 0 months.
    Duration() noexcept;
    /// `exact` in seconds.
    Duration(Nullable<DateTime> const& start, Decimal const& exact, int months);

    /// All of it exact, years and months by their fixed length.
    static Duration CreateExact(DateTime const& start, Decimal const& amount, Unit unit);
    /// Without a start. Years and months become calendar months, as below; 2.9 months are 2, a half year is 6.
    static Duration CreateRelative(Decimal const& amount, Unit unit);
    /// The fraction of a month is dropped: 1.5 gives 1 and -1.5 gives -1. A number of months beyond int gives 0.
    static Duration CreateRelativeFromMonths(Decimal const& amount) noexcept;
    static Duration const& Zero() noexcept;

    /// Null when there is none; valid as long as this object.
    DateTime const* GetStart() const noexcept { return m_start.Get(); }
    int GetMonthComponent() const noexcept { return m_months; }
    /// The exact part alone.
    Decimal GetExactComponent(Unit unit) const;
    /// The whole length, months included.
    Decimal GetExact(Unit unit) const;
    /// With a start, years and months as the calendar has them, and what is left by a month's fixed length: 45 days
    /// from 15 January are 1 month and 14/30. Otherwise GetExact.
    Decimal GetReasonable(Unit unit) const;
    /// Whole calendar months from the start, DateTime::GetMonthsForNextSeconds of the exact part and the months. Throws
    /// InvalidStateException without a start.
    int GetReasonableMonths() const;

    /// -1, 0 or 1 by the length in seconds: one relative month equals 30 days. A NaN equals everything.
    int CompareTo(Duration const& other) const;
    bool operator==(Duration const& other) const { return CompareTo(other) == 0; }
    bool operator!=(Duration const& other) const { return CompareTo(other) != 0; }
    bool operator<(Duration const& other) const { return CompareTo(other) < 0; }
    bool operator<=(Duration const& other) const { return CompareTo(other) <= 0; }
    bool operator>(Duration const& other) const { return CompareTo(other) > 0; }
    bool operator>=(Duration const& other) const { return CompareTo(other) >= 0; }

    /// Both parts, each for itself; the start is that of the left operand.
    Duration operator-() const noexcept;
    Duration operator+(Duration const& other) const noexcept;
    Duration operator-(Duration const& other) const noexcept;
    /// Of the months, the whole multiple stays months and the rest becomes exact: 1 month * 2.5 is 2 months and 15
    /// days.
    Duration operator*(Decimal const& factor) const;
    /// Times 1 / divisor.
    Duration operator/(Decimal const& divisor) const;

    /// Takes as many whole months of 30 days as `amount` has from the months and the rest from the exact part: without
    /// 45 days it is 1 month and 15 days less. All goes from the exact part if those months are beyond int.
    void Substract(Decimal const& amount, Unit unit);

private:
    friend class DateTime;
    friend class DateTimeHelper;

    Duration(DateTimeHolder const& start, Decimal const& exact, int months) noexcept;

    Decimal GetExactSeconds() const;
    Decimal GetMonthsFromStart() const;
    DateTime const& RequireStart() const;

    DateTimeHolder m_start;
    Decimal m_exact; // seconds
    int m_months;
};

} // namespace Vek::Framework::Utilities
