// The business calendar: a million random days from 1970 to 2069, each asked once.

#include "CalendarQuestions.h"
#include "Contest.h"

#include <SysBase/VekDateEnv.h>
#include <SysBase/Werktage.h>

#include <string>

namespace Benchmarks
{

namespace
{

using VekSysBase::VekDateEnv;
using VekSysBase::VekDateEx;
using Question = CalendarQuestion<VekDateEx>;

auto MakeQuestions()
{
    return MakeCalendarQuestions(
        [](int days)
        {
            VekDateEx date(1, 1, 1970);
            date.AddDays(days);
            return date;
        },
        [](VekDateEx const& date) { return date.GetYear(); });
}

int ToDayNumber(VekDateEx const& date)
{
    return VekDateEx::GetDaysBetween(VekDateEx(1, 1, 1970), date);
}

bool const c_isRegistered = []
{
    RegisterForEach(
        "CalendarIsWerktag/ours", MakeQuestions,
        [](Question const& question) { return VekSysBase::IsWerktag(question.date); },
        [](bool isWerktag) { return static_cast<int>(isWerktag); });
    RegisterForEach(
        "CalendarNextWerktag/ours", MakeQuestions,
        [](Question const& question) { return VekSysBase::AddWerktage(question.date, 1); }, ToDayNumber);
    RegisterForEach(
        "CalendarAddWerktage/ours", MakeQuestions,
        [](Question const& question) { return VekSysBase::AddWerktage(question.date, question.days); }, ToDayNumber);
    RegisterForEach(
        "CalendarCountThenSkip/ours", MakeQuestions,
        [](Question const& question)
        { return VekDateEnv().GetNextWerktag(question.date, static_cast<unsigned int>(question.days)); },
        ToDayNumber);
    RegisterForEach(
        "CalendarEaster/ours", MakeQuestions,
        [](Question const& question) { return VekDateEnv().GetOstersonntag(static_cast<unsigned int>(question.year)); },
        [](VekDateEx const& easter) { return static_cast<int>(easter.GetDayOfYear()); });
    return true;
}();

} // namespace

} // namespace Benchmarks
