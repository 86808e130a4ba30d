#include <Utilities/DateTime.h>

#include <Exceptions/EnumOutOfRangeException.h>
#include <Platform/LocalTime.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/Duration.h>
#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/TickCalendar.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace Vek::Framework::Utilities
{

using namespace Internal;
using DecimalArithmetic::Whole;

namespace
{

constexpr int c_tickDigits = 7; // of a second
constexpr std::uint64_t c_secondsTo1970 = 11'644'473'600;

/// Throws ArgumentException for ticks that are no point in time.
SplitTicks SplitChecked(std::uint64_t ticks)
{
    if (ticks >= c_endOfTicks)
        throw ArgumentException();
    return Split(ticks);
}

/// Throws ArgumentException for fields that are out of range.
std::uint64_t MakeTicks(int year, unsigned month, unsigned day, unsigned hour, unsigned minute, unsigned second)
{
    ShortDate const date{ static_cast<std::uint32_t>(year), month, day };
    if (year < c_leastYear || year > c_greatestYear || !IsShortDate(date) || hour > 23 || minute > 59 || second > 59)
        throw ArgumentException();
    return c_ticksPerSecond * (GetSecondsOfDate(date) + ((hour * 60 + minute) * 60 + second));
}

/// What a day of a year that begins in March adds to that year to make the first eight bytes of components: the year,
/// month and day of the calendar, and that there is a day of the week.
constexpr auto c_componentsOfMarchDay = []
{
    std::array<std::uint64_t, 366> components{};
    for (std::uint32_t day = 0; day < components.size(); ++day)
    {
        ShortDate const date = GetShortDate(MarchDay{ 0, day });
        components[day] = date.year | date.month << 16U | 1U << 24U | std::uint64_t{ date.day } << 40U;
    }
    return components;
}();

/// Byte by byte as the class has its fields. Field by field, the result would be stored in single bytes and loaded as a
/// word right behind them, for which processors wait.
DateTimeComponentInfo MakeComponents(MarchDay const& day, std::uint32_t dayOfWeek, TimeOfDay const& time) noexcept
{
    static_assert(std::endian::native == std::endian::little && sizeof(DateTimeComponentInfo) == 10 &&
                  std::is_trivially_copyable_v<DateTimeComponentInfo>);
    std::uint64_t const high = dayOfWeek | time.hour << 16U | time.minute << 24U;
    std::uint64_t const low = (day.year + c_componentsOfMarchDay[day.day]) | high << 32U;
    auto const last = static_cast<std::uint16_t>(time.second);
    DateTimeComponentInfo components;
    auto* const bytes = reinterpret_cast<unsigned char*>(&components);
    std::memcpy(bytes, &low, sizeof(low));
    std::memcpy(bytes + sizeof(low), &last, sizeof(last));
    return components;
}

/// A point without its year, in an order that follows the calendar; below a millisecond nothing counts.
std::uint64_t GetPlaceInYear(std::uint64_t ticks)
{
    SplitTicks const split = SplitChecked(ticks);
    ShortDate const date = GetDateOfTickDay(split.day);
    return c_ticksPerDay * (date.month * 32 + date.day) + split.ticksOfDay / c_ticksPerMillisecond;
}

int Compare(std::uint64_t a, std::uint64_t b) noexcept
{
    return a > b ? 1 : a < b ? -1 : 0;
}

/// Seconds as ticks, rounded half away from zero: times 10^7 is another exponent. Of a NaN, an Infinity and what takes
/// more than 34 digits, 0.
Whole ToWholeTicks(Decimal const& seconds) noexcept
{
    DecimalArithmetic::Encoding const encoding = DecimalArithmetic::ToEncoding(seconds);
    if (!DecimalArithmetic::IsFinite(encoding) || DecimalArithmetic::IsZero(encoding))
        return {};
    DecimalArithmetic::Finite ticks = DecimalArithmetic::Unpack(encoding);
    ticks.exponent += c_tickDigits;
    return DecimalArithmetic::ToWhole(ticks);
}

/// Modulo 2^64, as Decimal becomes an integer.
std::uint64_t ToTicks(Decimal const& seconds) noexcept
{
    Whole const ticks = ToWholeTicks(seconds);
    return ticks.isNegative ? 0 - ticks.magnitude : ticks.magnitude;
}

/// `months` on from the point, without what is below a millisecond; false outside the years.
bool TryStepMonths(SplitTicks from, long long months, std::uint64_t& ticks) noexcept
{
    ShortDate const date = GetDateOfTickDay(from.day);
    long long const month = months + (date.year * 12 + date.month - 1); // from January of the year 0
    if (month < c_leastYear * 12 || month > c_greatestYear * 12 + 11)
        return false;
    auto const target = static_cast<std::uint32_t>(month);
    std::uint32_t const year = target / 12;
    std::uint32_t const monthOfYear = target % 12 + 1;
    std::uint32_t const day = std::min(date.day, GetShortMonthLength(year, monthOfYear));
    ticks = GetTicksOfDate({ year, monthOfYear, day }) + from.ticksOfDay - from.ticksOfDay % c_ticksPerMillisecond;
    return true;
}

/// The same, for `months` that may be 0: then any ticks are taken and stay whole.
std::uint64_t StepMonths(std::uint64_t ticks, long long months)
{
    if (months != 0 && !TryStepMonths(SplitChecked(ticks), months, ticks))
        throw ArgumentException();
    return ticks;
}

/// In the order of the calendar's months, where a day that was not reached takes one off on either side.
int CountMonths(ShortDate from, ShortDate to) noexcept
{
    int const months = static_cast<int>(to.year * 12 + to.month) - static_cast<int>(from.year * 12 + from.month);
    if (months >= 1 && to.day < from.day)
        return months - 1;
    if (months < 0 && to.day > from.day)
        return months + 1;
    return months;
}

} // namespace

DateTime DateTime::Now()
{
    Platform::ClockFields now{};
    if (!Platform::TryReadLocalClock(now))
        throw ArgumentException();
    std::uint64_t const ticks = MakeTicks(now.year, static_cast<unsigned>(now.month), static_cast<unsigned>(now.day),
                                          static_cast<unsigned>(now.hour), static_cast<unsigned>(now.minute),
                                          static_cast<unsigned>(now.second));
    return DateTime(ticks + c_ticksPerMillisecond * static_cast<unsigned>(now.millisecond));
}

DateTime DateTime::FromComponents(short year, unsigned char month, unsigned char day, unsigned char hour,
                                  unsigned char minute, unsigned char second)
{
    return DateTime(MakeTicks(year, month, day, hour, minute, second));
}

DateTime DateTime::FromComponents(DateTimeComponentInfo const& components)
{
    return FromComponents(components.GetYear(), components.GetMonth(), components.GetDayOfMonth(), components.GetHour(),
                          components.GetMinute(), components.GetSecond());
}

DateTime DateTime::FromTimeT(long long const& seconds) noexcept
{
    return DateTime((static_cast<std::uint64_t>(seconds) + c_secondsTo1970) * c_ticksPerSecond);
}

DateTimeComponentInfo DateTime::GetComponents() const
{
    if (m_ticks >= c_endOfTicks)
        throw ArgumentException();
    // Two divisions that do not wait for each other.
    auto const day = static_cast<std::uint32_t>(m_ticks / c_ticksPerDay);
    auto const second = static_cast<std::uint32_t>(m_ticks / c_ticksPerSecond - std::uint64_t{ day } * c_secondsPerDay);
    return MakeComponents(GetMarchDay(day + c_firstShortDay), GetDayOfWeekOfTickDay(day), GetTimeOfDay(second));
}

int DateTime::CompareTo(DateTime const& other, ComparisonOptions options) const
{
    switch (options)
    {
    case Exact:
        return Compare(m_ticks, other.m_ticks);
    case IgnoreYear:
        return Compare(GetPlaceInYear(m_ticks), GetPlaceInYear(other.m_ticks));
    }
    throw EnumOutOfRangeException();
}

DateTime DateTime::operator+(Duration const& duration) const
{
    return DateTime(StepMonths(m_ticks + ToTicks(duration.m_exact), duration.m_months));
}

DateTime DateTime::operator-(Duration const& duration) const
{
    // Rounded half away from zero, the ticks of the negated seconds are the negated ticks.
    return DateTime(StepMonths(m_ticks - ToTicks(duration.m_exact), -static_cast<long long>(duration.m_months)));
}

bool DateTime::TryAdd(Duration const& duration, DateTime& result) const noexcept
{
    Decimal const& seconds = duration.m_exact;
    constexpr long long beyond = 1'000'000'000'000; // more seconds than there are from the first to the last tick
    if (m_ticks >= c_endOfTicks || !IsFinite(seconds) || seconds > beyond || seconds < -beyond)
        return false;
    Whole const offset = ToWholeTicks(seconds);
    if (offset.isNegative ? offset.magnitude > m_ticks : offset.magnitude >= c_endOfTicks - m_ticks)
        return false;
    std::uint64_t ticks = offset.isNegative ? m_ticks - offset.magnitude : m_ticks + offset.magnitude;
    if (duration.m_months != 0 && !TryStepMonths(Split(ticks), duration.m_months, ticks))
        return false;
    result = DateTime(ticks);
    return true;
}

Duration DateTime::operator-(DateTime const& other) const
{
    return { other, Decimal(static_cast<long long>(m_ticks - other.m_ticks), -c_tickDigits), 0 };
}

int DateTime::GetDaysOfMonth(int month, int year)
{
    int const days = GetDaysInMonth(month, year);
    if (days == 0)
        throw ArgumentException();
    return days;
}

int DateTime::GetMonthsForNextSeconds(Decimal seconds) const
{
    return CountMonths(GetDateOfTickDay(SplitChecked(m_ticks).day),
                       GetDateOfTickDay(SplitChecked(m_ticks + ToTicks(seconds)).day));
}

Decimal DateTime::GetDurationInSecondsForNextMonths(int months, Decimal const& seconds) const
{
    std::uint64_t const from = m_ticks + ToTicks(seconds);
    return { static_cast<long long>(StepMonths(from, months) - from), -c_tickDigits };
}

} // namespace Vek::Framework::Utilities
