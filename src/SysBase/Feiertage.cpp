#include <SysBase/Feiertage.h>

#include <SysBase/VekDateEnv.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace VekSysBase
{

namespace
{

constexpr std::wstring_view c_names[] = {
    L"",
    L"Neujahr",
    L"Heilige Drei K\u00F6nige",
    L"Ostermontag",
    L"Staatsfeiertag",
    L"Christi Himmelfahrt",
    L"Pfingstmontag",
    L"Fronleichnam",
    L"Mari\u00E4 Himmelfahrt",
    L"Nationalfeiertag",
    L"Allerheiligen",
    L"Mari\u00E4 Empf\u00E4ngnis",
    L"Christtag",
    L"Stefanitag",
};

VekDateEx GetDaysAfter(VekDateEx date, int days)
{
    date.AddDays(days);
    return date;
}

} // namespace

Feiertag GetFeiertag(VekDateEx const& date) noexcept
{
    if (!VekDateEnv().IsFeiertag(date))
        return Feiertag::None;
    auto const feiertage = GetFeiertage(date.GetYear());
    return std::find_if(feiertage.begin(), feiertage.end(),
                        [&](FeiertagDate const& entry) { return entry.date == date; })
        ->feiertag;
}

std::wstring_view GetFeiertagName(Feiertag feiertag) noexcept
{
    auto const index = static_cast<unsigned int>(feiertag);
    return index < std::size(c_names) ? c_names[index] : std::wstring_view();
}

std::array<FeiertagDate, 13> GetFeiertage(int year) noexcept
{
    VekDateEx const easter = VekDateEnv().GetOstersonntag(static_cast<unsigned int>(year) & 0xFFFF);
    std::array<FeiertagDate, 13> feiertage = { {
        { { 1, 1, year }, Feiertag::Neujahr },
        { { 6, 1, year }, Feiertag::HeiligeDreiKoenige },
        { GetDaysAfter(easter, 1), Feiertag::Ostermontag },
        { { 1, 5, year }, Feiertag::Staatsfeiertag },
        { GetDaysAfter(easter, 39), Feiertag::ChristiHimmelfahrt },
        { GetDaysAfter(easter, 50), Feiertag::Pfingstmontag },
        { GetDaysAfter(easter, 60), Feiertag::Fronleichnam },
        { { 15, 8, year }, Feiertag::MariaeHimmelfahrt },
        { { 26, 10, year }, Feiertag::Nationalfeiertag },
        { { 1, 11, year }, Feiertag::Allerheiligen },
        { { 8, 12, year }, Feiertag::MariaeEmpfaengnis },
        { { 25, 12, year }, Feiertag::Christtag },
        { { 26, 12, year }, Feiertag::Stefanitag },
    } };
    // At the earliest, Ascension Day is 30 April.
    if (feiertage[4].date < feiertage[3].date)
        std::swap(feiertage[3], feiertage[4]);
    return feiertage;
}

} // namespace VekSysBase
