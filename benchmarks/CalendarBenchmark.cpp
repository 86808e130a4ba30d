// The business calendar beside QuantLib's calendar of Austria: a million random days from 1970 to 2069, each asked
// once.

#include <SysBase/VekDateEnv.h>
#include <SysBase/Werktage.h>

#include <benchmark/benchmark.h>

#include <ql/time/calendars/austria.hpp>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace Benchmarks
{

namespace
{

using VekSysBase::VekDateEnv;
using VekSysBase::VekDateEx;

constexpr std::size_t c_count = 1'000'000;

/// QuantLib's calendar, with its Easter in reach.
class PeerCalendar : public QuantLib::Calendar
{
public:
    struct Western : WesternImpl
    {
        using WesternImpl::easterMonday;
    };
};

struct Question
{
    VekDateEx date;
    QuantLib::Date peerDate;
    int days;
};

QuantLib::Date ToPeer(VekDateEx const& date)
{
    return QuantLib::Date(date.GetDay(), static_cast<QuantLib::Month>(date.GetMonth()), date.GetYear());
}

std::vector<Question> MakeQuestions()
{
    std::mt19937 engine(2024);
    std::vector<Question> questions(c_count);
    for (Question& question : questions)
    {
        question.date = VekDateEx(1, 1, 1970);
        question.date.AddDays(static_cast<int>(engine() % 36524));
        question.peerDate = ToPeer(question.date);
        question.days = 1 + static_cast<int>(engine() % 10);
    }
    return questions;
}

/// The rule of GetNextWerktag on QuantLib's calendar.
QuantLib::Date CountThenSkip(QuantLib::Calendar const& calendar, QuantLib::Date const& date, int days)
{
    QuantLib::Date result = date + days;
    for (int i = 0; i <= days; ++i)
        result += calendar.isHoliday(date + i) ? 1 : 0;
    while (calendar.isHoliday(result))
        ++result;
    return result;
}

template <class Answer>
void Time(std::string const& name, std::vector<Question> const& questions, Answer const& answer)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&questions, answer](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                         for (Question const& question : questions)
                                             benchmark::DoNotOptimize(answer(question));
                                     state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(c_count));
                                 });
}

/// Both must answer alike before their time counts.
template <class Ours, class Peer, class Convert>
void Contest(std::string const& workload, std::vector<Question> const& questions, Ours const& ours, Peer const& peer,
             Convert const& convert)
{
    for (Question const& question : questions)
        if (convert(ours(question)) != peer(question))
        {
            std::cerr << workload << ": QuantLib answers otherwise for " << question.peerDate.serialNumber() << '\n';
            std::abort();
        }
    Time(workload + "/ours", questions, ours);
    Time(workload + "/QuantLib", questions, peer);
}

bool const c_isRegistered = []
{
    static std::vector<Question> const questions = MakeQuestions();
    static QuantLib::Calendar const calendar = QuantLib::Austria();
    auto const same = [](auto answer) { return answer; };
    Contest(
        "CalendarIsWerktag", questions, [](Question const& question) { return VekSysBase::IsWerktag(question.date); },
        [](Question const& question) { return calendar.isBusinessDay(question.peerDate); }, same);
    Contest(
        "CalendarNextWerktag", questions,
        [](Question const& question) { return VekSysBase::AddWerktage(question.date, 1); },
        [](Question const& question) { return calendar.advance(question.peerDate, 1, QuantLib::Days); }, ToPeer);
    Contest(
        "CalendarAddWerktage", questions,
        [](Question const& question) { return VekSysBase::AddWerktage(question.date, question.days); },
        [](Question const& question) { return calendar.advance(question.peerDate, question.days, QuantLib::Days); },
        ToPeer);
    Contest(
        "CalendarCountThenSkip", questions,
        [](Question const& question)
        { return VekDateEnv().GetNextWerktag(question.date, static_cast<unsigned int>(question.days)); },
        [](Question const& question) { return CountThenSkip(calendar, question.peerDate, question.days); }, ToPeer);
    Contest(
        "CalendarEaster", questions,
        [](Question const& question)
        { return VekDateEnv().GetOstersonntag(static_cast<unsigned int>(question.date.GetYear())); },
        [](Question const& question) { return PeerCalendar::Western::easterMonday(question.date.GetYear()); },
        [](VekDateEx const& easter) { return easter.GetDayOfYear() + 1; });
    return true;
}();

} // namespace

} // namespace Benchmarks
