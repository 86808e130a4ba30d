#include <Utilities/Internal/DateText.h>

#include <Utilities/Internal/TickCalendar.h>

namespace Vek::Framework::Utilities::Internal
{

namespace
{

constexpr std::uint32_t c_firstLongYear = 10'000;
constexpr std::size_t c_fractionDigits = 7;
constexpr wchar_t c_dateMark = L'T';

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

/// Reads field by field and stops at the first fault.
class Reader
{
public:
    Reader(std::wstring_view text, DateTextLimits const& limits) noexcept : m_text(text), m_limits(limits) {}

    DateTextFault const& Read(DateNotation notation, DateTextFields& fields) noexcept
    {
        bool const isIso = notation == DateNotation::Iso;
        if ((isIso ? ReadIsoDate(fields.date) : ReadGermanDate(fields.date)) &&
            (!m_limits.hasTime || ReadTime(isIso, fields.ticksOfDay)) && !IsAtEnd())
            Fail(isIso && BeginsZone(Peek()) ? DateTextError::TimeZone : DateTextError::WrongUnit, m_at);
        return m_fault;
    }

private:
    bool IsAtEnd() const noexcept { return m_at == m_text.size(); }
    wchar_t Peek() const noexcept { return m_text[m_at]; }

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
            field.value = field.value * 10 + static_cast<std::uint32_t>(m_text[m_at++] - L'0');
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
        if (!Take(isIso ? c_dateMark : L' '))
            return true;
        Field hour, minute, second, fraction;
        if (!ReadField(isIso ? 2 : 1, c_hours, hour) || !Expect(L':') || !ReadField(2, c_sixtieths, minute))
            return false;
        if (Take(L':') && (!ReadField(2, c_sixtieths, second) || (isIso && !ReadFraction(fraction))))
            return false;
        ticksOfDay = c_ticksPerSecond * ((hour.value * 60 + minute.value) * 60 + second.value) + fraction.value;
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

    std::wstring_view m_text;
    std::size_t m_at = 0;
    DateTextLimits m_limits;
    DateTextFault m_fault;
};

constexpr wchar_t ToDigit(std::uint32_t value) noexcept
{
    return static_cast<wchar_t>(L'0' + value);
}

} // namespace

DateTextFault ReadDateText(std::wstring_view text, DateNotation notation, DateTextLimits const& limits,
                           DateTextFields& fields) noexcept
{
    return Reader(text, limits).Read(notation, fields);
}

void DateTextWriter::PutDate(DateNotation notation, ShortDate const& date) noexcept
{
    if (notation == DateNotation::German)
    {
        PutTwo(date.day);
        Put(L'.');
        PutTwo(date.month);
        Put(L'.');
        PutYear(date.year);
        return;
    }
    if (date.year >= c_firstLongYear)
        Put(L'+');
    PutYear(date.year);
    Put(L'-');
    PutTwo(date.month);
    Put(L'-');
    PutTwo(date.day);
}

void DateTextWriter::PutTime(DateNotation notation, std::uint64_t ticksOfDay) noexcept
{
    TimeOfDay const time = GetTimeOfDay(static_cast<std::uint32_t>(ticksOfDay / c_ticksPerSecond));
    Put(notation == DateNotation::Iso ? c_dateMark : L' ');
    PutTwo(time.hour);
    Put(L':');
    PutTwo(time.minute);
    if (notation == DateNotation::German)
        return;
    Put(L':');
    PutTwo(time.second);
    if (std::uint64_t const fraction = ticksOfDay % c_ticksPerSecond; fraction != 0)
        PutFraction(static_cast<std::uint32_t>(fraction));
}

void DateTextWriter::PutTwo(std::uint32_t value) noexcept
{
    Put(ToDigit(value / 10));
    Put(ToDigit(value % 10));
}

void DateTextWriter::PutYear(std::uint32_t year) noexcept
{
    if (year >= c_firstLongYear)
        Put(ToDigit(year / c_firstLongYear));
    PutTwo(year / 100 % 100);
    PutTwo(year % 100);
}

void DateTextWriter::PutFraction(std::uint32_t ticks) noexcept
{
    Put(L'.');
    for (std::uint32_t unit = static_cast<std::uint32_t>(c_ticksPerSecond) / 10; ticks != 0; unit /= 10)
    {
        Put(ToDigit(ticks / unit));
        ticks %= unit;
    }
}

} // namespace Vek::Framework::Utilities::Internal
