#pragma once

#include <random>
#include <vector>

namespace Benchmarks
{

/// A day, how many to go on from it, and its year.
template <class Date>
struct CalendarQuestion
{
    Date date;
    int days;
    int year;
};

/// A million random days from 1970 to 2069; `make` makes a date of the days since 1 January 1970.
template <class Make, class GetYear>
auto MakeCalendarQuestions(Make const& make, GetYear const& getYear)
{
    std::mt19937 engine(2024);
    std::vector<CalendarQuestion<decltype(make(0))>> questions;
    for (int i = 0; i < 1'000'000; ++i)
    {
        auto const date = make(static_cast<int>(engine() % 36524));
        questions.push_back({ date, 1 + static_cast<int>(engine() % 10), getYear(date) });
    }
    return questions;
}

} // namespace Benchmarks
