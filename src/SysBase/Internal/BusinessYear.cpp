#include <SysBase/Internal/BusinessYear.h>

#include <SysBase/Internal/DayNumbers.h>

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
        DaySet weekends;
        for (int sunday = m_easter % 7; sunday <= GetLength(); sunday += 7)
        {
            if (sunday > 0)
                weekends.Insert(sunday - 1);
            if (sunday < GetLength())
                weekends.Insert(sunday);
        }
        DaySet bank = With(weekends, c_fixedFeiertage, c_movableFeiertage);
        bank.Insert(GetDay({ 24, 12 }));
        BusinessYear year{ GetLength(),
                           { With({}, c_fixedFeiertage, c_movableFeiertage),
                             With(weekends, c_fixedFeiertage, c_movableFeiertage), bank,
                             With(weekends, c_fixedTargetDays, c_movableTargetDays) } };
        for (DaySet& set : year.sets)
            set.Finish();
        return year;
    }

private:
    constexpr int GetLength() const { return 365 + m_leapDays; }

    constexpr int GetDay(DayAndMonth date) const
    {
        return GetDayOfYear(date.day, date.month, 2023) - 1 + (date.month > 2 ? m_leapDays : 0);
    }

    template <std::size_t FixedCount, std::size_t MovableCount>
    constexpr DaySet With(DaySet set, DayAndMonth const (&fixed)[FixedCount], int const (&movable)[MovableCount]) const
    {
        for (DayAndMonth const date : fixed)
            set.Insert(GetDay(date));
        for (int const days : movable)
            set.Insert(m_easter + days);
        return set;
    }

    int m_leapDays;
    int m_easter; // from 1 January
};

} // namespace

constexpr std::array<BusinessYear, 2 * c_easterDays> c_businessYears = []
{
    std::array<BusinessYear, 2 * c_easterDays> years{};
    for (int easter = 0; easter < c_easterDays; ++easter)
    {
        years[static_cast<std::size_t>(easter)] = YearBuilder(easter, false).Build();
        years[static_cast<std::size_t>(easter + c_easterDays)] = YearBuilder(easter, true).Build();
    }
    return years;
}();

} // namespace VekSysBase::Internal
