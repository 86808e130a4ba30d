// QuantLib's calendar of Austria with the questions of CalendarBenchmark.cpp.

#include "CalendarQuestions.h"
#include "Contest.h"

#include <ql/time/calendars/austria.hpp>

#include <string>

namespace Benchmarks
{

namespace
{

using QuantLib::Date;
using Question = CalendarQuestion<Date>;

/// QuantLib's calendar, with its Easter in reach.
class PeerCalendar : public QuantLib::Calendar
{
public:
    struct Western : WesternImpl
    {
        using WesternImpl::easterMonday;
    };
};

auto MakeQuestions()
{
    return MakeCalendarQuestions([](int days) { return Date(1, QuantLib::January, 1970) + days; },
                                 [](Date const& date) { return static_cast<int>(date.year()); });
}

int ToDayNumber(Date const& date)
{
    return static_cast<int>(date - Date(1, QuantLib::January, 1970));
}

/// The rule of GetNextWerktag on QuantLib's calendar.
Date CountThenSkip(QuantLib::Calendar const& calendar, Date const& date, int days)
{
    Date result = date + days;
    for (int i = 0; i <= days; ++i)
        result += calendar.isHoliday(date + i) ? 1 : 0;
    while (calendar.isHoliday(result))
        ++result;
    return result;
}

bool const c_isRegistered = []
{
    static QuantLib::Calendar const s_calendar = QuantLib::Austria();
    RegisterForEach(
        "CalendarIsWerktag/QuantLib", MakeQuestions,
        [](Question const& question) { return s_calendar.isBusinessDay(question.date); },
        [](bool isWerktag) { return static_cast<int>(isWerktag); });
    RegisterForEach(
        "CalendarNextWerktag/QuantLib", MakeQuestions,
        [](Question const& question) { return s_calendar.advance(question.date, 1, QuantLib::Days); }, ToDayNumber);
    RegisterForEach(
        "CalendarAddWerktage/QuantLib", MakeQuestions,
        [](Question const& question) { return s_calendar.advance(question.date, question.days, QuantLib::Days); },
        ToDayNumber);
    RegisterForEach(
        "CalendarCountThenSkip/QuantLib", MakeQuestions,
        [](Question const& question) { return CountThenSkip(s_calendar, question.date, question.days); }, ToDayNumber);
    RegisterForEach(
        "CalendarEaster/QuantLib", MakeQuestions,
        [](Question const& question) { return PeerCalendar::Western::easterMonday(question.year); },
        [](int easterMonday) { return easterMonday - 1; });
    return true;
}();

} // namespace

} // namespace Benchmarks
