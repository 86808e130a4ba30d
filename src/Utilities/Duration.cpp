#include <Utilities/Duration.h>

#include <Exceptions/EnumOutOfRangeException.h>
#include <Exceptions/InvalidStateException.h>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr int c_secondsPerMonth = 2'592'000;
constexpr int c_monthsPerYear = 12;

/// Seconds per unit.
int GetFactor(Duration::Unit unit)
{
    switch (unit)
    {
    case Duration::Years:
        return c_monthsPerYear * c_secondsPerMonth;
    case Duration::Months:
        return c_secondsPerMonth;
    case Duration::Weeks:
        return 604'800;
    case Duration::Days:
        return 86'400;
    case Duration::Hours:
        return 3600;
    case Duration::Minutes:
        return 60;
    case Duration::Seconds:
        return 1;
    }
    throw EnumOutOfRangeException();
}

Decimal Truncate(Decimal const& value)
{
    return value.Round(0, RoundMode::TowardZero, false);
}

int AddWrapping(int a, int b) noexcept
{
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

int MultiplyWrapping(int a, int b) noexcept
{
    return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

int NegateWrapping(int value) noexcept
{
    return static_cast<int>(0 - static_cast<unsigned>(value));
}

} // namespace

Duration::Duration() noexcept : Duration(DateTimeHolder({}), Decimal(), 0)
{
}

Duration::Duration(Nullable<DateTime> const& start, Decimal const& exact, int months)
    : Duration(DateTimeHolder(start), exact, months)
{
}

Duration::Duration(DateTimeHolder const& start, Decimal const& exact, int months) noexcept
    : m_start(start),
      m_exact(exact),
      m_months(months)
{
}

Duration Duration::CreateExact(DateTime const& start, Decimal const& amount, Unit unit)
{
    return { start, amount * GetFactor(unit), 0 };
}

Duration Duration::CreateRelative(Decimal const& amount, Unit unit)
{
    if (unit == Years)
        return CreateRelativeFromMonths(amount * c_monthsPerYear);
    if (unit == Months)
        return CreateRelativeFromMonths(amount);
    return { DateTimeHolder({}), amount * GetFactor(unit), 0 };
}

Duration Duration::CreateRelativeFromMonths(Decimal const& amount) noexcept
{
    return { DateTimeHolder({}), Decimal(), static_cast<int>(Truncate(amount)) };
}

Duration const& Duration::Zero() noexcept
{
    static Duration const zero;
    return zero;
}

Decimal Duration::GetExactComponent(Unit unit) const
{
    return m_exact / GetFactor(unit);
}

Decimal Duration::GetExact(Unit unit) const
{
    int const factor = GetFactor(unit);
    return GetExactSeconds() / factor;
}

Decimal Duration::GetReasonable(Unit unit) const
{
    if (GetStart() != nullptr && unit == Years)
        return GetMonthsFromStart() / c_monthsPerYear;
    if (GetStart() != nullptr && unit == Months)
        return GetMonthsFromStart();
    return GetExact(unit);
}

int Duration::GetReasonableMonths() const
{
    return AddWrapping(RequireStart().GetMonthsForNextSeconds(m_exact), m_months);
}

int Duration::CompareTo(Duration const& other) const
{
    return GetExactSeconds().CompareTo(other.GetExactSeconds());
}

Duration Duration::operator-() const noexcept
{
    return { m_start, -m_exact, NegateWrapping(m_months) };
}

Duration Duration::operator+(Duration const& other) const noexcept
{
    return { m_start, m_exact + other.m_exact, AddWrapping(m_months, other.m_months) };
}

Duration Duration::operator-(Duration const& other) const noexcept
{
    return *this + -other;
}

Duration Duration::operator*(Decimal const& factor) const
{
    Decimal const exact = m_exact * factor;
    if (m_months == 0)
        return { m_start, exact, 0 };
    Decimal const whole = Truncate(factor);
    Decimal const rest = factor - whole;
    return { m_start, exact + rest * c_secondsPerMonth * m_months,
             MultiplyWrapping(m_months, static_cast<int>(whole)) };
}

Duration Duration::operator/(Decimal const& divisor) const
{
    return *this * (1 / divisor);
}

void Duration::Substract(Decimal const& amount, Unit unit)
{
    Decimal const seconds = amount * GetFactor(unit);
    int const months = static_cast<int>(Truncate(seconds / c_secondsPerMonth));
    m_months = AddWrapping(m_months, NegateWrapping(months));
    m_exact -= seconds - Decimal(months) * c_secondsPerMonth;
}

Decimal Duration::GetExactSeconds() const
{
    if (DateTime const* const start = GetStart())
        return m_exact + start->GetDurationInSecondsForNextMonths(m_months, m_exact);
    return m_exact + Decimal(m_months) * c_secondsPerMonth;
}

Decimal Duration::GetMonthsFromStart() const
{
    DateTime const& start = RequireStart();
    int const covered = start.GetMonthsForNextSeconds(m_exact);
    Decimal const length = start.GetDurationInSecondsForNextMonths(covered, 0);
    return AddWrapping(covered, m_months) + (m_exact - length) / c_secondsPerMonth;
}

DateTime const& Duration::RequireStart() const
{
    if (DateTime const* const start = GetStart())
        return *start;
    throw InvalidStateException();
}

} // namespace Vek::Framework::Utilities
