#include <SysBase/CalendarNames.h>

#include <array>
#include <cstddef>

namespace VekSysBase
{

namespace
{

constexpr std::array<std::wstring_view, 12> c_months = {
    L"J\u00E4nner", L"Februar", L"M\u00E4rz", L"April",   L"Mai",      L"Juni",
    L"Juli",        L"August",  L"September", L"Oktober", L"November", L"Dezember",
};
constexpr std::array<std::wstring_view, 7> c_days = {
    L"Montag", L"Dienstag", L"Mittwoch", L"Donnerstag", L"Freitag", L"Samstag", L"Sonntag",
};

template <std::size_t Count>
std::wstring_view Find(std::array<std::wstring_view, Count> const& names, int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < Count ? names[static_cast<std::size_t>(index)]
                                                                 : std::wstring_view();
}

} // namespace

std::wstring_view GetMonatsname(int month) noexcept
{
    return month < 1 ? std::wstring_view() : Find(c_months, month - 1);
}

std::wstring_view GetWochentagsname(DayOfWeek dayOfWeek) noexcept
{
    return Find(c_days, static_cast<int>(dayOfWeek));
}

std::wstring_view GetWochentagskuerzel(DayOfWeek dayOfWeek) noexcept
{
    return GetWochentagsname(dayOfWeek).substr(0, 2);
}

} // namespace VekSysBase
