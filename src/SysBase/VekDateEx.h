#pragma once

#include <SysBase/DayOfWeek.h>
#include <VekApi.h>

#include <compare>
#include <cstdint>

namespace VekSysBase
{

/// A day of the business calendar, without a time of day.
///
/// Shape:  day and month of 8 bits, year of 16; 4 bytes, a plain value. All zero is the zero date: no date at all.
/// Range:  full years 0 to 65535, Gregorian leap years in all of them. Nothing is checked when fields are stored, and
///         of every number that is stored the low bits stay: a date may be invalid.
/// Errors: nothing throws. What an operation says of an invalid date is its answer; where it says nothing, its rule is
///         applied to the fields as they are: 31 February + 1 day is what the 62nd day of the year + 1 is.
///         A year that an operation reaches outside 0 to 65535 is stored by its low 16 bits.
/// Cost:   no operation goes day by day or year by year.
class VEK_API VekDateEx
{
public:
    /// The zero date.
    constexpr VekDateEx() noexcept = default;
    constexpr VekDateEx(int day, int month, int year) noexcept
        : m_day(static_cast<std::uint8_t>(day)),
          m_month(static_cast<std::uint8_t>(month)),
          m_year(static_cast<std::uint16_t>(year))
    {
    }

    constexpr int GetDay() const noexcept { return m_day; }
    constexpr int GetMonth() const noexcept { return m_month; }
    constexpr int GetYear() const noexcept { return m_year; }
    /// GetYear by other names.
    constexpr int GetYearEx() const noexcept { return m_year; }
    constexpr int GetYearYYYY() const noexcept { return m_year; }
    /// The last two digits: 5 for 2005. There is no way back.
    constexpr int GetYearYY() const noexcept { return m_year % 100; }

    constexpr void SetDay(int day) noexcept { m_day = static_cast<std::uint8_t>(day); }
    constexpr void SetMonth(int month) noexcept { m_month = static_cast<std::uint8_t>(month); }
    constexpr void SetYear(int year) noexcept { m_year = static_cast<std::uint16_t>(year); }

    constexpr bool IsZero() const noexcept { return GetOrder() == 0; }
    /// Whether day and month are there in any year's sense: 29 February 2023 is not. The zero date is valid unless
    /// `strict`.
    bool IsValid(bool strict) const noexcept;
    bool IsLeapYear() const noexcept;
    /// 365 or 366.
    int GetDaysInYear() const noexcept;
    /// 28 to 31; 0 for a month outside 1 to 12.
    int GetDaysInMonth() const noexcept;
    /// Whether this lies between the two, whichever is earlier; the bounds themselves only if `inclusive`. A zero
    /// `from` leaves that side open: this < to. A zero `to` likewise, but then `from` itself always counts: this >=
    /// from. The difference is kept, callers rely on it. False if this is the zero date or invalid.
    bool IsDateBetween(VekDateEx const& from, VekDateEx const& to, bool inclusive) const noexcept;

    /// 1 to 366.
    int GetDayOfYear() const noexcept;
    /// 0 Sunday, 1 Monday ... 6 Saturday.
    int GetDayOfWeekInt() const noexcept;
    DayOfWeek GetDayOfWeek() const noexcept;

    /// By year, month and day.
    friend constexpr bool operator==(VekDateEx const&, VekDateEx const&) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(VekDateEx const& a, VekDateEx const& b) noexcept
    {
        return a.GetOrder() <=> b.GetOrder();
    }
    /// Negative, 0 or positive; only the sign means something. Within a month it is the difference of the days.
    static int Compare(VekDateEx const& a, VekDateEx const& b) noexcept;

    void AddDays(int days) noexcept;
    /// A day beyond the new month's length becomes its last: 31 January + 1 month is 28 or 29 February.
    void AddMonths(int months) noexcept;
    /// A year earlier; the last of February stays the last: 28 February 2025 gives 29 February 2024.
    VekDateEx GetYearBefore() const noexcept;
    /// Day 1 is 1 January. The zero date if the year has no such day, but day 0 gives day 0 of January, an invalid date
    /// that callers step on from.
    static VekDateEx DayInYearToDate(int dayOfYear, int year) noexcept;

    /// Between two dates: positive if `b` is later, negative if it is earlier; 0 if either is zero or invalid.
    static int GetDaysBetween(VekDateEx const& a, VekDateEx const& b) noexcept;
    /// Whole months, told by the day of the month alone: 31 January to 28 February is none, to 1 March is one.
    static int GetMonthsBetween(VekDateEx const& a, VekDateEx const& b) noexcept;
    /// Anniversaries of the earlier date up to the later one. That of 29 February comes on 1 March in common years.
    static int GetYearsBetween(VekDateEx const& a, VekDateEx const& b) noexcept;
    /// Whether the days from `a` to `b`, both counted, are a year: 1 January to 31 December. A year from 29 February
    /// ends on 27 February. False if either is zero or invalid.
    static bool IsOneYearBetween(VekDateEx const& a, VekDateEx const& b) noexcept;

    /// 1 to 4; 1 for month 0, which the zero date has.
    constexpr unsigned int GetQuartal() const noexcept { return m_month == 0 ? 1U : (m_month - 1U) / 3U + 1U; }
    /// 0 for a month outside 1 to 12.
    static unsigned int ConvertMonatToQuartal(unsigned int month) noexcept;
    /// The quarter's first month. The three that take a quarter answer one outside 1 to 4 each in its own way, which
    /// callers know: this with 0, the next with 1, the last with 12.
    static unsigned int ConvertQuartalToMonat(unsigned int quarter) noexcept;
    static unsigned int GetMonatsbeginnVonQuartal(unsigned int quarter) noexcept;
    static unsigned int GetMonatsendeVonQuartal(unsigned int quarter) noexcept;

private:
    constexpr std::uint32_t GetOrder() const noexcept
    {
        return static_cast<std::uint32_t>(m_year) << 16 | static_cast<std::uint32_t>(m_month) << 8 | m_day;
    }

    std::uint8_t m_day = 0;
    std::uint8_t m_month = 0;
    std::uint16_t m_year = 0;
};

static_assert(sizeof(VekDateEx) == 4);

} // namespace VekSysBase
