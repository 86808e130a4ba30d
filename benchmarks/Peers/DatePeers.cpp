// std::chrono and Howard Hinnant's date with the points of DateBenchmark.cpp, each a local_time of 100 ns.

#include "DateContest.h"

#include <Exceptions/ArgumentException.h>

#include <chrono>
#include <date/date.h>
#include <sstream>
#include <string>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::DateTimeComponentInfo;
using Vek::Framework::Utilities::DayOfWeek;

using Ticks = std::chrono::duration<long long, std::ratio<1, 10'000'000>>;

/// With a library that has local_time, year_month_day and hh_mm_ss.
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

bool const c_isRegistered = []
{
    RegisterSteps<ChronoDates<Chrono>>("std::chrono");
    RegisterSteps<ChronoDates<HinnantDate>>("date");
    RegisterTexts<HinnantDates>("date");
    return true;
}();

} // namespace

} // namespace Benchmarks
