#pragma once

#include <SysBase/VekDateEx.h>

namespace VekSysBase
{

/// The Austrian calendar of holidays (Feiertag), working days (Werktag) and bank working days (Bankwerktag).
///
/// Holidays: 1 and 6 January, Easter Monday, 1 May, Ascension Day, Whit Monday, Corpus Christi, 15 August, 26 October,
///           1 November, 8, 25 and 26 December: thirteen, the same in every year. Good Friday, 24 and 31 December are
///           none.
/// Werktag:  every day but holidays, Saturdays and Sundays. Bankwerktag: the same without 24 December.
/// Shape:    no data; the operations are members so that they can be called on an environment object. Safe on any
///           thread.
/// Errors:   nothing throws. An invalid date is no holiday; its weekday is that of its fields as they are.
/// Range:    every year; days are counted on the endless Gregorian calendar, and of a result's year outside 0 to 65535
///           the low 16 bits are stored.
/// Cost:     a year is one step, not a day.
class VEK_API VekDateEnv
{
public:
    /// By Gauss's rule for the Gregorian calendar, applied to every year.
    VekDateEx GetOstersonntag(unsigned int year) const noexcept;

    bool IsFeiertag(VekDateEx const& date) const noexcept;

    /// The date + `days` + the free days among date, date + 1 ... date + `days`, and from there the first day that is
    /// not free. With 0 days the date itself if it is a working day.
    ///
    /// The rule is that of deadlines which callers have always computed so; it is not "the n-th working day": a free
    /// start date counts (a Saturday with 1 day gives the Tuesday after it), and free days that the count moves over
    /// are not counted again. To count working days one by one, take AddWerktage and AddBankwerktage of Werktage.h.
    VekDateEx GetNextWerktag(VekDateEx const& date, unsigned int days) const noexcept;
    VekDateEx GetNextBankwerktag(VekDateEx const& date, unsigned int days) const noexcept;

    VekDateEx GetCurrentOrPreviousBankwerktag(VekDateEx const& date) const noexcept;

protected:
    /// Whether the day is none.
    bool GetFreeWerktag(VekDateEx const& date) const noexcept;
    bool GetFreeBankwerktag(VekDateEx const& date) const noexcept;
};

} // namespace VekSysBase
