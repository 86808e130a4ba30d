#pragma once

#include <Utilities/DayOfWeek.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// A point in time as year, month, day, hour, minute and second, with a day of the week if there is one.
///
/// Shape: a plain value of ten bytes, copied freely. There is no field for fractions of a second.
/// Range: none here: any value of the field's type can be stored. DateTime::FromComponents checks.
class VEK_API DateTimeComponentInfo
{
public:
    /// Every field 0, no day of the week. That is no date: a month and a day begin with 1.
    constexpr DateTimeComponentInfo() noexcept = default;
    constexpr DateTimeComponentInfo(short year, unsigned char month, unsigned char dayOfMonth, unsigned char hour,
                                    unsigned char minute, unsigned char second) noexcept
        : m_year(year),
          m_month(month),
          m_dayOfMonth(dayOfMonth),
          m_hour(hour),
          m_minute(minute),
          m_second(second)
    {
    }
    constexpr DateTimeComponentInfo(short year, unsigned char month, unsigned char dayOfMonth, DayOfWeek dayOfWeek,
                                    unsigned char hour, unsigned char minute, unsigned char second) noexcept
        : m_year(year),
          m_month(month),
          m_hasDayOfWeek(true),
          m_dayOfWeek(dayOfWeek),
          m_dayOfMonth(dayOfMonth),
          m_hour(hour),
          m_minute(minute),
          m_second(second)
    {
    }

    constexpr short GetYear() const noexcept { return m_year; }
    constexpr void SetYear(short year) noexcept { m_year = year; }
    /// 1 to 12.
    constexpr unsigned char GetMonth() const noexcept { return m_month; }
    constexpr void SetMonth(unsigned char month) noexcept { m_month = month; }
    /// From 1 on.
    constexpr unsigned char GetDayOfMonth() const noexcept { return m_dayOfMonth; }
    constexpr void SetDayOfMonth(unsigned char dayOfMonth) noexcept { m_dayOfMonth = dayOfMonth; }
    constexpr unsigned char GetHour() const noexcept { return m_hour; }
    constexpr void SetHour(unsigned char hour) noexcept { m_hour = hour; }
    constexpr unsigned char GetMinute() const noexcept { return m_minute; }
    constexpr void SetMinute(unsigned char minute) noexcept { m_minute = minute; }
    constexpr unsigned char GetSecond() const noexcept { return m_second; }
    constexpr void SetSecond(unsigned char second) noexcept { m_second = second; }

    constexpr bool HasDayOfWeek() const noexcept { return m_hasDayOfWeek; }
    /// Throws InvalidStateException when there is none.
    DayOfWeek GetDayOfWeek() const;
    constexpr void SetDayOfWeek(DayOfWeek dayOfWeek) noexcept
    {
        m_hasDayOfWeek = true;
        m_dayOfWeek = dayOfWeek;
    }

private:
    short m_year = 0;
    unsigned char m_month = 0;
    bool m_hasDayOfWeek = false;
    DayOfWeek m_dayOfWeek = DayOfWeek::Sunday; // means nothing without the field above
    unsigned char m_dayOfMonth = 0;
    unsigned char m_hour = 0;
    unsigned char m_minute = 0;
    unsigned char m_second = 0;
};

} // namespace Vek::Framework::Utilities
