#!/usr/bin/python3
"""Writes the tables beside this file that the calendar is compared with, by other means than ours.

    make-tables.py        needs Debian's g++ and libquantlib0-dev

A line is a year and days of it as MMDD:
target-closing-days.txt    QuantLib's TARGET calendar without weekends, from 2002 on
austria-free-weekdays.txt  QuantLib's calendar of Austria without weekends, from 1967 on
"""

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


def make_by_quantlib(requests):
    with tempfile.TemporaryDirectory() as folder:
        program = folder + "/program"
        subprocess.run(
            ["g++", "-x", "c++", "-", "-o", program, "-lQuantLib"], input=QUANTLIB_PROGRAM, text=True, check=True
        )
        for name, arguments in requests.items():
            (FOLDER / name).write_bytes(subprocess.run([program, *arguments], capture_output=True, check=True).stdout)


make_by_quantlib(
    {"target-closing-days.txt": ("TARGET", "2002"), "austria-free-weekdays.txt": ("Austria", "1967")}
)
