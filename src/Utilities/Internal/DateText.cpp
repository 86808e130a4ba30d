#include <Utilities/Internal/DateText.h>

#include <Utilities/Internal/DateTextHead.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/Internal/TickCalendar.h>

#include <algorithm>

namespace Vek::Framework::Utilities::Internal
{

namespace
{

constexpr std::uint32_t c_firstLongYear = 10'000;
constexpr std::size_t c_fractionDigits = 7;

constexpr bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

constexpr bool BeginsZone(wchar_t unit) noexcept
{
    return unit == L'Z' || unit == L'z' || unit == L'+' || unit == L'-';
}

/// A number and where it stands.
struct Field
{
    std::uint32_t value = 0;
    std::size_t position = 0;
    std::size_t digits = 0;
};

struct FieldRange
{
    std::uint32_t least;
    std::uint32_t greatest;
};

constexpr FieldRange c_months{ 1, 12 };
constexpr FieldRange c_days{ 1, 31 };
constexpr FieldRange c_hours{ 0, 23 };
constexpr FieldRange c_sixtieths{ 0, 59 };

/// Stops at the first fault.
class Reader
{
public:
    Reader(wchar_t const* units, std::size_t size, DateTextLimits const& limits, DateTextFault& fault) noexcept
        : m_units(units),
          m_size(size),
          m_limits(limits),
          m_fault(fault)
    {
        m_fault = DateTextFault();
    }

    bool Read(DateNotation notation, DateTextFields& fields) noexcept
    {
        bool const isIso = notation == DateNotation::Iso;
        return (TakeHead(notation, fields) ? ReadSecond(isIso, fields.ticksOfDay) : ReadFields(isIso, fields)) &&
               (IsAtEnd() ||
                Fail(isIso && BeginsZone(Peek()) ? DateTextError::TimeZone : DateTextError::WrongUnit, m_at));
    }

private:
    bool IsAtEnd() const noexcept { return m_at == m_size; }
    wchar_t Peek() const noexcept { return m_units[m_at]; }

    bool Fail(DateTextError error, std::size_t position) noexcept
    {
        m_fault = { error, position };
        return false;
    }

    /// What is here is not what belongs here.
    bool FailHere() noexcept { return Fail(IsAtEnd() ? DateTextError::MissingUnit : DateTextError::WrongUnit, m_at); }

    bool Take(wchar_t unit) noexcept
    {
        if (IsAtEnd() || Peek() != unit)
            return false;
        ++m_at;
        return true;
    }

    bool Expect(wchar_t unit) noexcept { return Take(unit) || FailHere(); }

    Field TakeDigits(std::size_t most) noexcept
    {
        Field field;
        for (field.position = m_at; field.digits < most && !IsAtEnd() && IsDigit(Peek()); ++field.digits)
            field.value = field.value * 10 + static_cast<std::uint32_t>(m_units[m_at++] - L'0');
        return field;
    }

    bool RequireRange(Field const& field, FieldRange range) noexcept
    {
        return (field.value >= range.least && field.value <= range.greatest) ||
               Fail(DateTextError::OutOfRange, field.position);
    }

    /// One digit more is one too many, before the number counts.
    bool Require(Field const& field, FieldRange range) noexcept
    {
        return (!IsAtEnd() && IsDigit(Peek())) ? FailHere() : RequireRange(field, range);
    }

    /// Of two digits; a German one may have one.
    bool ReadField(std::size_t leastDigits, FieldRange range, Field& field) noexcept
    {
        field = TakeDigits(2);
        return (field.digits >= leastDigits || FailHere()) && Require(field, range);
    }

    /// False, and nothing is taken, for other texts and for those with a fault: they are read field by field.
    bool TakeHead(DateNotation notation, DateTextFields& fields) noexcept
    {
        TimeOfDay time{};
        if (!m_limits.hasTime || m_size < c_headSize || !TryReadHead(m_units, notation, fields.date, time) ||
            fields.date.year < m_limits.leastYear || fields.date.year > m_limits.greatestYear ||
            !IsShortDate(fields.date) || time.hour > c_hours.greatest || time.minute > c_sixtieths.greatest)
            return false;
        fields.ticksOfDay = GetTicksOfTime(time);
        m_at = c_headSize;
        return true;
    }

    bool ReadFields(bool isIso, DateTextFields& fields) noexcept
    {
        return (isIso ? ReadIsoDate(fields.date) : ReadGermanDate(fields.date)) &&
               (!m_limits.hasTime || ReadTime(isIso, fields.ticksOfDay));
    }

    bool ReadIsoDate(ShortDate& date) noexcept
    {
        Field year, month, day;
        return ReadIsoYear(year) && Expect(L'-') && ReadField(2, c_months, month) && Expect(L'-') &&
               ReadField(2, c_days, day) && Combine(year, month, day, date);
    }

    bool ReadGermanDate(ShortDate& date) noexcept
    {
        Field year, month, day;
        return ReadField(1, c_days, day) && Expect(L'.') && ReadField(1, c_months, month) && Expect(L'.') &&
               ReadYear(year) && Combine(year, month, day, date);
    }

    bool ReadIsoYear(Field& year) noexcept
    {
        if (!Take(L'+'))
            return ReadShortYear(year);
        year = TakeDigits(5);
        return (year.digits == 5 || FailHere()) && Require(year, { c_firstLongYear, m_limits.greatestYear });
    }

    bool ReadShortYear(Field& year) noexcept
    {
        year = TakeDigits(4);
        if (year.digits < 4)
            return year.digits == 0 ? FailHere() : Fail(DateTextError::ShortYear, year.position);
        return Require(year, { m_limits.leastYear, m_limits.greatestYear });
    }

    /// A fifth digit belongs to the year unless it begins with 0.
    bool ReadYear(Field& year) noexcept
    {
        std::size_t const begin = m_at;
        Field const longYear = TakeDigits(5);
        if (longYear.digits < 5 || longYear.value < c_firstLongYear)
        {
            m_at = begin;
            return ReadShortYear(year);
        }
        year = longYear;
        return Require(year, { c_firstLongYear, m_limits.greatestYear });
    }

    bool Combine(Field const& year, Field const& month, Field const& day, ShortDate& date) noexcept
    {
        date = { year.value, month.value, day.value };
        return RequireRange(day, { 1, GetShortMonthLength(year.value, month.value) });
    }

    bool ReadTime(bool isIso, std::uint64_t& ticksOfDay) noexcept
    {
        if (!Take(isIso ? L'T' : L' '))
            return true;
        Field hour, minute;
        if (!ReadField(isIso ? 2 : 1, c_hours, hour) || !Expect(L':') || !ReadField(2, c_sixtieths, minute))
            return false;
        ticksOfDay = GetTicksOfTime({ hour.value, minute.value, 0 });
        return ReadSecond(isIso, ticksOfDay);
    }

    /// If there is one.
    bool ReadSecond(bool isIso, std::uint64_t& ticksOfDay) noexcept
    {
        if (!Take(L':'))
            return true;
        Field second, fraction;
        if (!ReadField(2, c_sixtieths, second) || (isIso && !ReadFraction(fraction)))
            return false;
        ticksOfDay += c_ticksPerSecond * second.value + fraction.value;
        return true;
    }

    /// As ticks.
    bool ReadFraction(Field& fraction) noexcept
    {
        if (!Take(L'.') && !Take(L','))
            return true;
        fraction = TakeDigits(c_fractionDigits);
        for (std::size_t i = fraction.digits; i < c_fractionDigits; ++i)
            fraction.value *= 10;
        return fraction.digits != 0 || FailHere();
    }

    wchar_t const* m_units;
    std::size_t m_size;
    std::size_t m_at = 0;
    DateTextLimits const& m_limits;
    DateTextFault& m_fault;
};

constexpr wchar_t ToDigit(std::uint32_t value) noexcept
{
    return static_cast<wchar_t>(L'0' + value);
}

constexpr std::size_t c_timeSize = 6;       // of a head: T14:30
constexpr std::size_t c_longestSecond = 11; // :59.9999999

/// Of a head, the sign and the fifth digit of a long year included.
constexpr std::size_t GetGreatestHeadSize(std::uint32_t year) noexcept
{
    return year < c_firstLongYear ? c_headSize : c_headSize + 2;
}

/// Years up to 99999. Answers the end; room for GetGreatestHeadSize units.
wchar_t* WriteToMinute(wchar_t* target, DateNotation notation, ShortDate date, TimeOfDay const& time) noexcept
{
    std::uint32_t const fifthDigit = date.year / c_firstLongYear;
    date.year %= c_firstLongYear;
    if (fifthDigit != 0 && notation == DateNotation::Iso)
    {
        *target++ = L'+';
        *target++ = ToDigit(fifthDigit);
    }
    WriteHead(target, notation, date, time);
    wchar_t* const end = target + c_headSize;
    if (fifthDigit == 0 || notation == DateNotation::Iso)
        return end;
    wchar_t* const year = target + 6;
    std::copy_backward(year, end, end + 1);
    *year = ToDigit(fifthDigit);
    return end + 1;
}

/// Answers the end; room for c_longestSecond units.
wchar_t* WriteSecond(wchar_t* target, std::uint32_t second, std::uint32_t ticks) noexcept
{
    *target++ = L':';
    *target++ = ToDigit(second / 10);
    *target++ = ToDigit(second % 10);
    if (ticks == 0)
        return target;
    *target++ = L'.';
    for (std::uint32_t unit = static_cast<std::uint32_t>(c_ticksPerSecond) / 10; ticks != 0; unit /= 10)
    {
        *target++ = ToDigit(ticks / unit);
        ticks %= unit;
    }
    return target;
}

/// `write` answers the end.
template <class Write>
std::wstring MakeText(std::size_t room, Write const& write)
{
    std::wstring text;
    ResizeAndOverwrite(text, room,
                       [&](wchar_t* units, std::size_t) { return static_cast<std::size_t>(write(units) - units); });
    return text;
}

} // namespace

bool TryReadDateText(wchar_t const* units, std::size_t size, DateNotation notation, DateTextLimits const& limits,
                     DateTextFields& fields, DateTextFault& fault) noexcept
{
    return Reader(units, size, limits, fault).Read(notation, fields);
}

std::wstring MakeDateText(DateNotation notation, ShortDate const& date)
{
    return MakeText(GetGreatestHeadSize(date.year),
                    [&](wchar_t* units) { return WriteToMinute(units, notation, date, TimeOfDay()) - c_timeSize; });
}

std::wstring MakeDateText(DateNotation notation, ShortDate const& date, std::uint64_t ticksOfDay)
{
    TimeOfDay const time = GetTimeOfDay(static_cast<std::uint32_t>(ticksOfDay / c_ticksPerSecond));
    if (notation == DateNotation::German)
        return MakeText(GetGreatestHeadSize(date.year),
                        [&](wchar_t* units) { return WriteToMinute(units, notation, date, time); });
    return MakeText(GetGreatestHeadSize(date.year) + c_longestSecond,
                    [&](wchar_t* units)
                    {
                        wchar_t* const end = WriteToMinute(units, notation, date, time);
                        return WriteSecond(end, time.second, static_cast<std::uint32_t>(ticksOfDay % c_ticksPerSecond));
                    });
}

} // namespace Vek::Framework::Utilities::Internal
