// Points in time beside std::chrono and Howard Hinnant's date: a million random points from 1970 to 2069 each.
//
// A point of the peers is a local_time of 100 ns, what is broken down has the same fields for all, and what is put
// together is checked: a day that the month does not have and an hour 24 are refused.

#include <Utilities/DateTimeText.h>
#include <Utilities/Duration.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <date/date.h>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;

constexpr std::size_t c_count = 1'000'000;
constexpr unsigned long long c_ticksTo1970 = 116'444'736'000'000'000;

using Ticks = std::chrono::duration<long long, std::ratio<1, 10'000'000>>;

struct OurDates
{
    using Point = DateTime;
    using Components = DateTimeComponentInfo;
    using Text = std::wstring;

    static Point FromTicks(unsigned long long ticks) { return DateTime::FromTicks(ticks); }
    static unsigned long long ToTicks(Point const& point) { return point.GetTicks(); }
    static Components Split(Point const& point) { return point.GetComponents(); }
    static Point Join(Components const& components) { return DateTime::FromComponents(components); }
    static Duration MakeMonths(int months) { return Duration::CreateRelative(months, Duration::Months); }
    static Point AddMonths(Point const& point, Duration const& months) { return point + months; }
    static Text Format(Point const& point) { return FormatGerman(point); }
    static Point Parse(Text const& text)
    {
        Point point;
        DateTextFault fault;
        return TryParseGerman(text, point, fault) ? point : Point();
    }
};

/// The same with a library that has local_time, year_month_day and hh_mm_ss.
template <class Library>
struct ChronoDates
{
    using Point = typename Library::template LocalTime<Ticks>;
    using Components = DateTimeComponentInfo;

    static Point FromTicks(unsigned long long ticks)
    {
        return Point(Ticks(static_cast<long long>(ticks - c_ticksTo1970)));
    }

    static unsigned long long ToTicks(Point const& point)
    {
        return static_cast<unsigned long long>(point.time_since_epoch().count()) + c_ticksTo1970;
    }

    static Components Split(Point const& point)
    {
        auto const day = Library::FloorDays(point);
        typename Library::Date const date(day);
        typename Library::Time const time(std::chrono::duration_cast<std::chrono::seconds>(point - day));
        return { static_cast<short>(static_cast<int>(date.year())),
                 static_cast<unsigned char>(static_cast<unsigned>(date.month())),
                 static_cast<unsigned char>(static_cast<unsigned>(date.day())),
                 static_cast<DayOfWeek>(typename Library::Weekday(day).c_encoding()),
                 static_cast<unsigned char>(time.hours().count()),
                 static_cast<unsigned char>(time.minutes().count()),
                 static_cast<unsigned char>(time.seconds().count()) };
    }

    static Point Join(Components const& components)
    {
        typename Library::Date const date(typename Library::Year(components.GetYear()),
                                          typename Library::Month(components.GetMonth()),
                                          typename Library::Day(components.GetDayOfMonth()));
        if (!date.ok() || components.GetHour() > 23 || components.GetMinute() > 59 || components.GetSecond() > 59)
            throw Vek::ArgumentException();
        return Library::ToLocalDays(date) + std::chrono::hours(components.GetHour()) +
               std::chrono::minutes(components.GetMinute()) + std::chrono::seconds(components.GetSecond());
    }

    static typename Library::Months MakeMonths(int months) { return typename Library::Months(months); }

    static Point AddMonths(Point const& point, typename Library::Months months)
    {
        auto const day = Library::FloorDays(point);
        typename Library::Date date(day);
        date += months;
        if (!date.ok())
            date = date.year() / date.month() / Library::GetLast();
        Ticks const time = point - day;
        return Library::ToLocalDays(date) + (time - time % Ticks(10'000)); // to the millisecond, as ours
    }
};

struct Chrono
{
    template <class Duration>
    using LocalTime = std::chrono::local_time<Duration>;
    using Date = std::chrono::year_month_day;
    using Time = std::chrono::hh_mm_ss<std::chrono::seconds>;
    using Weekday = std::chrono::weekday;
    using Year = std::chrono::year;
    using Month = std::chrono::month;
    using Day = std::chrono::day;
    using Months = std::chrono::months;

    static auto FloorDays(LocalTime<Ticks> point) { return std::chrono::floor<std::chrono::days>(point); }
    static auto ToLocalDays(Date const& date) { return std::chrono::local_days(date); }
    static auto GetLast() { return std::chrono::last; }
};

struct HinnantDate
{
    template <class Duration>
    using LocalTime = date::local_time<Duration>;
    using Date = date::year_month_day;
    using Time = date::hh_mm_ss<std::chrono::seconds>;
    using Weekday = date::weekday;
    using Year = date::year;
    using Month = date::month;
    using Day = date::day;
    using Months = date::months;

    static auto FloorDays(LocalTime<Ticks> point) { return date::floor<date::days>(point); }
    static auto ToLocalDays(Date const& date) { return date::local_days(date); }
    static auto GetLast() { return date::last; }
};

struct HinnantDates : ChronoDates<HinnantDate>
{
    using Text = std::string;

    static Text Format(Point const& point) { return date::format("%d.%m.%Y %H:%M", point); }

    static Point Parse(Text const& text)
    {
        Point point;
        std::istringstream stream(text);
        stream >> date::parse("%d.%m.%Y %H:%M", point);
        return stream ? point : Point();
    }
};

std::vector<unsigned long long> MakeTicks()
{
    std::mt19937_64 engine(2024);
    std::vector<unsigned long long> ticks(c_count);
    for (unsigned long long& point : ticks)
        point = c_ticksTo1970 + engine() % (36'525ULL * 864'000'000'000);
    return ticks;
}

std::vector<unsigned long long> const& GetTicks()
{
    static auto const ticks = MakeTicks();
    return ticks;
}

/// Ours and a peer's answers as one number each.
unsigned long long ToNumber(DateTimeComponentInfo const& value)
{
    unsigned long long number = static_cast<unsigned>(value.GetYear()) * 13U + value.GetMonth();
    for (unsigned part : { value.GetDayOfMonth() + 0U, static_cast<unsigned>(value.GetDayOfWeek()),
                           value.GetHour() + 0U, value.GetMinute() + 0U, value.GetSecond() + 0U })
        number = number * 61 + part;
    return number;
}

/// A function of its own, so that callgrind can count the instructions of nothing else.
template <class Operands, class Operation>
[[gnu::noinline]] void AnswerAll(Operands const& operands, Operation const& operation)
{
    for (auto const& operand : operands)
        benchmark::DoNotOptimize(operation(operand));
}

template <class Make, class Operation, class Check>
void Register(std::string const& name, Make const& make, Operation const& operation, Check const& check)
{
    auto const run = [=](benchmark::State& state)
    {
        auto const operands = make();
        for (std::size_t i = 0; i < operands.size(); i += 17)
            if (!check(operation(operands[i]), GetTicks()[i]))
                state.SkipWithError("another result than the others");
        for (auto _ : state)
            AnswerAll(operands, operation);
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(operands.size()));
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

/// The first `count` points, each made into an operand.
template <class Make>
auto MakeAll(std::size_t count, Make const& make)
{
    return [=]
    {
        std::vector<decltype(make(GetTicks()[0]))> operands;
        for (std::size_t i = 0; i < count; ++i)
            operands.push_back(make(GetTicks()[i]));
        return operands;
    };
}

template <class Dates>
void RegisterSteps(std::string const& contestant)
{
    using Point = typename Dates::Point;
    auto const points = MakeAll(c_count, [](unsigned long long ticks) { return Dates::FromTicks(ticks); });
    Register(
        "DateToComponents/" + contestant, points, [](Point const& point) { return Dates::Split(point); },
        [](auto const& result, unsigned long long ticks)
        { return ToNumber(result) == ToNumber(OurDates::Split(OurDates::FromTicks(ticks))); });
    Register(
        "DateFromComponents/" + contestant,
        MakeAll(c_count, [](unsigned long long ticks) { return Dates::Split(Dates::FromTicks(ticks)); }),
        [](auto const& components) { return Dates::Join(components); },
        [](Point result, unsigned long long ticks)
        { return Dates::ToTicks(result) == ticks / 10'000'000 * 10'000'000; });
    for (int months : { 1, -18 })
    {
        auto const step = Dates::MakeMonths(months);
        Register((months == 1 ? "DateNextMonth/" : "Date18MonthsBefore/") + contestant, points,
                 [step](Point const& point) { return Dates::AddMonths(point, step); },
                 [months](Point result, unsigned long long ticks)
                 {
                     DateTime const ours = DateTime::FromTicks(ticks) + OurDates::MakeMonths(months);
                     return Dates::ToTicks(result) == ours.GetTicks();
                 });
    }
}

/// Our text as the contestant's: the peer reads and writes bytes.
template <class Dates>
typename Dates::Text ToText(std::wstring const& text)
{
    typename Dates::Text result(text.size(), ' ');
    for (std::size_t i = 0; i < text.size(); ++i)
        result[i] = static_cast<typename Dates::Text::value_type>(text[i]);
    return result;
}

template <class Dates>
void RegisterTexts(std::string const& contestant)
{
    constexpr std::size_t count = 10'000;
    using Point = typename Dates::Point;
    Register(
        "DateFormatGerman/" + contestant,
        MakeAll(count, [](unsigned long long ticks) { return Dates::FromTicks(ticks); }),
        [](Point const& point) { return Dates::Format(point); },
        [](auto const& result, unsigned long long ticks)
        { return ToText<Dates>(OurDates::Format(OurDates::FromTicks(ticks))) == result; });
    Register(
        "DateParseGerman/" + contestant,
        MakeAll(count,
                [](unsigned long long ticks) { return ToText<Dates>(OurDates::Format(OurDates::FromTicks(ticks))); }),
        [](typename Dates::Text const& text) { return Dates::Parse(text); },
        [](Point result, unsigned long long ticks)
        { return Dates::ToTicks(result) == ticks / 600'000'000 * 600'000'000; });
}

bool const s_isRegistered = []
{
    RegisterSteps<OurDates>("ours");
    RegisterSteps<ChronoDates<Chrono>>("std::chrono");
    RegisterSteps<HinnantDates>("date");
    RegisterTexts<OurDates>("ours");
    RegisterTexts<HinnantDates>("date");
    return true;
}();

} // namespace

} // namespace Benchmarks
