// Dates and times of day as text, for all kinds of dates: reading with the place of the fault, and writing.
#pragma once

#include <Utilities/DateTextFault.h>
#include <Utilities/Internal/CivilCalendar.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vek::Framework::Utilities::Internal
{

enum class DateNotation
{
    Iso,   // 2024-03-05T14:30:05.1234567
    German // 05.03.2024 14:30
};

/// What a kind of dates can hold. Years have up to five digits.
struct DateTextLimits
{
    std::uint32_t leastYear;
    std::uint32_t greatestYear;
    bool hasTime; // perhaps: a date alone is enough
};

struct DateTextFields
{
    ShortDate date{};
    std::uint64_t ticksOfDay = 0;
};

/// The fields of a date that exists, or the first fault; the fields mean nothing then.
DateTextFault ReadDateText(std::wstring_view text, DateNotation notation, DateTextLimits const& limits,
                           DateTextFields& fields) noexcept;

/// Room for the longest text: +30827-12-31T23:59:59.9999999.
class DateTextWriter
{
public:
    /// Years up to 99999; with four digits at least, from 10000 on with five and, in ISO 8601, a plus sign.
    void PutDate(DateNotation notation, ShortDate const& date) noexcept;
    /// With what stands before it. German drops what is below a minute.
    void PutTime(DateNotation notation, std::uint64_t ticksOfDay) noexcept;

    std::wstring_view GetText() const noexcept { return { m_units, m_size }; }

private:
    void Put(wchar_t unit) noexcept { m_units[m_size++] = unit; }
    void PutTwo(std::uint32_t value) noexcept;
    void PutYear(std::uint32_t year) noexcept;
    void PutFraction(std::uint32_t ticks) noexcept;

    wchar_t m_units[29];
    std::size_t m_size = 0;
};

} // namespace Vek::Framework::Utilities::Internal
