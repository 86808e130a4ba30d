// The date of Easter Sunday, on which the movable holidays hang.
#pragma once

namespace VekSysBase::Internal
{

/// Easter falls on 22 March at the earliest and on 25 April at the latest.
constexpr int c_easterDays = 35;

/// Days from 22 March to Easter Sunday, [0, 34]; any year.
constexpr unsigned int GetEaster(unsigned int year)
{
    // Gauss's rule for the Gregorian calendar; every division truncates.
    unsigned int const century = year / 100;
    unsigned int const moon = (15 + century - (8 * century + 13) / 25 - year / 400) % 30;
    unsigned int const week = (4 + century - year / 400) % 7;
    unsigned int const lunar = year % 19;
    unsigned int const d = (19 * lunar + moon) % 30;                             // [0, 29] full moon after 21 March
    unsigned int const e = (2 * (year % 4) + 4 * (year % 7) + 6 * d + week) % 7; // [0, 6] on to Sunday
    // 26 April never stands, 25 April not when the 19 years already have that full moon.
    bool const isTooLate = d + e == 35 || (d + e == 34 && d == 28 && lunar > 10);
    return isTooLate ? d + e - 7 : d + e;
}

} // namespace VekSysBase::Internal
