#include <SysBase/Internal/BusinessYear.h>

#include <SysBase/Internal/DayNumbers.h>

#include <span>
#include <utility>

namespace VekSysBase::Internal
{

namespace
{

struct DayAndMonth
{
    int day;
    int month;
};

constexpr DayAndMonth c_fixedFeiertage[] = {
    { 1, 1 }, { 6, 1 }, { 1, 5 }, { 15, 8 }, { 26, 10 }, { 1, 11 }, { 8, 12 }, { 25, 12 }, { 26, 12 },
};
constexpr int c_movableFeiertage[] = { 1, 39, 50, 60 }; // days after Easter Sunday

constexpr DayAndMonth c_fixedTargetDays[] = { { 1, 1 }, { 1, 5 }, { 25, 12 }, { 26, 12 } };
constexpr int c_movableTargetDays[] = { -2, 1 };

/// One year, with every set by its rule.
class YearBuilder
{
public:
    constexpr YearBuilder(int easter, bool isLeapYear)
        : m_leapDays(isLeapYear ? 1 : 0),
          m_easter(GetDay({ 22, 3 }) + easter)
    {
    }

    constexpr BusinessYear Build() const
    {
        Days weekends{};
        for (int sunday = m_easter % 7; sunday <= GetLength(); sunday += 7)
        {
            if (sunday > 0)
                Insert(weekends, sunday - 1);
            if (sunday < GetLength())
                Insert(weekends, sunday);
        }
        Days const werktag = With(weekends, c_fixedFeiertage, c_movableFeiertage);
        Days bankwerktag = werktag;
        Insert(bankwerktag, GetDay({ 24, 12 }));
        return { GetLength(),
                 { DaySet(With({}, c_fixedFeiertage, c_movableFeiertage)), DaySet(werktag), DaySet(bankwerktag),
                   DaySet(With(weekends, c_fixedTargetDays, c_movableTargetDays)) } };
    }

private:
    using Days = std::array<bool, 366>;

    static constexpr void Insert(Days& days, int day) { days[static_cast<std::size_t>(day)] = true; }

    constexpr int GetLength() const { return 365 + m_leapDays; }

    constexpr int GetDay(DayAndMonth date) const
    {
        return GetDayOfYear(date.day, date.month, 2023) - 1 + (date.month > 2 ? m_leapDays : 0);
    }

    constexpr Days With(Days days, std::span<DayAndMonth const> fixed, std::span<int const> movable) const
    {
        for (DayAndMonth const date : fixed)
            Insert(days, GetDay(date));
        for (int const later : movable)
            Insert(days, m_easter + later);
        return days;
    }

    int m_leapDays;
    int m_easter; // from 1 January
};

// Each year is a computation of its own: compilers limit the steps that one may take.
template <std::size_t Index>
constexpr BusinessYear c_year = YearBuilder(Index % c_easterDays, Index >= c_easterDays).Build();

template <std::size_t... Indices>
constexpr std::array<BusinessYear, sizeof...(Indices)> Collect(std::index_sequence<Indices...>)
{
    return { c_year<Indices>... };
}

} // namespace

constexpr std::array<BusinessYear, 2 * c_easterDays> c_businessYears =
    Collect(std::make_index_sequence<2 * c_easterDays>());

BusinessYear const& GetDistantBusinessYear(long long year)
{
    return c_businessYears[GetBusinessYearIndex(year)];
}

} // namespace VekSysBase::Internal
