#!/usr/bin/python3
"""Writes the tables beside this file that the calendar is compared with, by other means than ours.

    make-tables.py        needs Debian's g++ and libquantlib0-dev

A line is a year and days of it as MMDD:
movable-holidays.txt       Easter Monday, Ascension Day, Whit Monday and Corpus Christi, Easter by the epacts of Lilius
                           and Clavius as Knuth gives them (The Art of Computer Programming 1, 1.3.2, exercise 14)
target-closing-days.txt    QuantLib's TARGET calendar without weekends, from 2002 on
austria-free-weekdays.txt  QuantLib's calendar of Austria without weekends, from 1967 on
"""

import datetime
import pathlib
import subprocess
import tempfile

FOLDER = pathlib.Path(__file__).parent

# Prints the free weekdays of the years from argv[2] to 2199, the last that QuantLib has.
QUANTLIB_PROGRAM = r"""
#include <ql/time/calendars/austria.hpp>
#include <ql/time/calendars/target.hpp>
#include <cstdio>
#include <cstdlib>
#include <string>

int main(int, char** argv)
{
    using namespace QuantLib;
    Calendar const calendar = argv[1] == std::string("Austria") ? Calendar(Austria()) : Calendar(TARGET());
    for (int year = std::atoi(argv[2]); year < 2200; ++year)
    {
        std::printf("%d", year);
        for (Date day(1, January, year); day.year() == year && day < Date::maxDate(); ++day)
            if (!calendar.isWeekend(day.weekday()) && calendar.isHoliday(day))
                std::printf(" %02d%02d", static_cast<int>(day.month()), static_cast<int>(day.dayOfMonth()));
        std::printf("\n");
    }
}
"""


def easter_by_epact(year):
    golden = year % 19 + 1
    century = year // 100 + 1
    dropped_leap_days = 3 * century // 4 - 12
    moon_correction = (8 * century + 5) // 25 - 5
    sunday = 5 * year // 4 - dropped_leap_days - 10
    epact = (11 * golden + 20 + moon_correction - dropped_leap_days) % 30
    if epact == 24 or (epact == 25 and golden > 11):
        epact += 1
    full_moon = 44 - epact
    if full_moon < 21:
        full_moon += 30
    return datetime.date(year, 3, 1) + datetime.timedelta(full_moon + 7 - (sunday + full_moon) % 7 - 1)


def movable_holidays(year):
    return [easter_by_epact(year) + datetime.timedelta(days) for days in (1, 39, 50, 60)]


def make_by_quantlib(requests):
    with tempfile.TemporaryDirectory() as folder:
        program = folder + "/program"
        subprocess.run(
            ["g++", "-x", "c++", "-", "-o", program, "-lQuantLib"], input=QUANTLIB_PROGRAM, text=True, check=True
        )
        for name, arguments in requests.items():
            (FOLDER / name).write_bytes(subprocess.run([program, *arguments], capture_output=True, check=True).stdout)


with open(FOLDER / "movable-holidays.txt", "w", encoding="ascii", newline="\n") as file:
    for year in range(1583, 2201):
        file.write(" ".join([str(year)] + [day.strftime("%m%d") for day in movable_holidays(year)]) + "\n")
make_by_quantlib(
    {"target-closing-days.txt": ("TARGET", "2002"), "austria-free-weekdays.txt": ("Austria", "1967")}
)
