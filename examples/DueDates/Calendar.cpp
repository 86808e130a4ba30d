// The calendar that the due dates follow, for people.

#include "Console.h"
#include "Output.h"
#include "Table.h"

#include <SysBase/CalendarNames.h>
#include <SysBase/Feiertage.h>
#include <SysBase/Kalenderwoche.h>
#include <SysBase/VekDateText.h>
#include <SysBase/Werktage.h>

using namespace VekSysBase;

namespace Example
{

namespace
{

constexpr std::size_t c_dayWidth = 5; // of them one for the mark

wchar_t GetMark(VekDateEx const& date)
{
    if (GetFeiertag(date) != Feiertag::None)
        return L'*';
    bool const isWeekend = date.GetDayOfWeek() >= DayOfWeek::Saturday;
    return isWeekend || IsBankwerktag(date) ? L' ' : L'+';
}

std::wstring WithoutBlanksAtTheEnd(std::wstring text)
{
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

void PrintWeek(Kalenderwoche const& week, int month)
{
    std::wstring line = RightAligned(std::to_wstring(week.week), 2);
    for (int day = 0; day < 7; ++day)
    {
        VekDateEx const date = GetDateInKalenderwoche(week, static_cast<DayOfWeek>(day));
        line += date.GetMonth() == month ? RightAligned(std::to_wstring(date.GetDay()), c_dayWidth - 1) + GetMark(date)
                                         : std::wstring(c_dayWidth, L' ');
    }
    PrintLine(WithoutBlanksAtTheEnd(line));
}

} // namespace

void PrintHolidays(int year)
{
    PrintLine(L"Feiertage " + std::to_wstring(year));
    for (FeiertagDate const& entry : GetFeiertage(year))
        PrintLine(std::wstring(GetWochentagskuerzel(entry.date.GetDayOfWeek())) + L"  " + FormatGerman(entry.date) +
                  L"  " + std::wstring(GetFeiertagName(entry.feiertag)));
}

void PrintMonth(VekDateEx const& date)
{
    PrintLine(std::wstring(GetMonatsname(date.GetMonth())) + L' ' + std::to_wstring(date.GetYear()));
    std::wstring title = L"KW";
    for (int day = 0; day < 7; ++day)
        title += RightAligned(std::wstring(GetWochentagskuerzel(static_cast<DayOfWeek>(day))), c_dayWidth - 1) + L' ';
    PrintLine(WithoutBlanksAtTheEnd(title));
    VekDateEx const first(1, date.GetMonth(), date.GetYear());
    VekDateEx const last(date.GetDaysInMonth(), date.GetMonth(), date.GetYear());
    // By their Mondays, the first of which may lie in the month before.
    VekDateEx monday = GetDateInKalenderwoche(GetKalenderwoche(first), DayOfWeek::Monday);
    for (; monday <= last; monday.AddDays(7))
        PrintWeek(GetKalenderwoche(monday), date.GetMonth());
    PrintLine(L"* Feiertag, + kein Bankwerktag");
}

} // namespace Example
