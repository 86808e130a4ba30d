// Points in time over whole domains, against the calendar of the standard library.

#include <Utilities/DateTime.h>
#include <Utilities/DecimalLiterals.h>
#include <Utilities/Duration.h>

#include <chrono>
#include <ctime>

namespace
{

using namespace Vek::Framework::Utilities;

constexpr unsigned long long c_day = 864'000'000'000;
constexpr unsigned long long c_second = 10'000'000;
constexpr unsigned long long c_end = 1ULL << 63U;

int GetLength(int month, int year)
{
    using namespace std::chrono;
    return static_cast<int>(unsigned((std::chrono::year(year) / month / last).day()));
}

DateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return DateTime::FromComponents(static_cast<short>(year), static_cast<unsigned char>(month),
                                    static_cast<unsigned char>(day), static_cast<unsigned char>(hour),
                                    static_cast<unsigned char>(minute), static_cast<unsigned char>(second));
}

TEST(DateTime, EveryDayIsThatOfChrono)
{
    unsigned long long ticks = 0;
    unsigned second = 0;
    std::chrono::sys_days const end = std::chrono::year(10'000) / 1 / 1;
    for (std::chrono::sys_days date = std::chrono::year(1601) / 1 / 1; date < end; ++date, ticks += c_day)
    {
        std::chrono::year_month_day const fields = date;
        int const year = static_cast<int>(fields.year());
        int const month = static_cast<int>(unsigned(fields.month()));
        int const day = static_cast<int>(unsigned(fields.day()));
        second = (second + 40'003) % 86'400;
        int const hour = static_cast<int>(second / 3600);
        int const minute = static_cast<int>(second / 60 % 60);
        DateTime const point = At(year, month, day, hour, minute, static_cast<int>(second % 60));
        ASSERT_EQ(point.GetTicks(), ticks + second * c_second) << year << ' ' << month << ' ' << day;
        DateTimeComponentInfo const read = DateTime::FromTicks(point.GetTicks() + second * 115).GetComponents();
        bool const isSame = read.GetYear() == year && read.GetMonth() == month && read.GetDayOfMonth() == day &&
                            read.GetHour() == hour && read.GetMinute() == minute && read.GetSecond() == second % 60 &&
                            static_cast<unsigned>(read.GetDayOfWeek()) == std::chrono::weekday(date).c_encoding();
        ASSERT_TRUE(isSame) << year << ' ' << month << ' ' << day;
    }
}

TEST(DateTime, MonthStepsFromEveryMonthsEnd)
{
    constexpr int reach = 1200;
    unsigned long long const time = (14 * 3600 + 59) * c_second + 1'234'567;
    std::vector<unsigned long long> starts = { At(1880, 1, 1).GetTicks() };
    std::vector<unsigned> lengths;
    for (int month = 0; month < 640 * 12; ++month)
    {
        lengths.push_back(static_cast<unsigned>(GetLength(month % 12 + 1, 1880 + month / 12)));
        starts.push_back(starts.back() + lengths.back() * c_day);
    }
    std::vector<Duration> steps;
    for (int months = -reach; months <= reach; ++months)
        steps.push_back(Duration({}, 0, months));
    for (std::size_t from = 110 * 12; from < 510 * 12; ++from)
    {
        DateTime const start = DateTime::FromTicks(starts[from] + (lengths[from] - 1) * c_day + time);
        for (std::size_t step = 0; step < steps.size(); ++step)
        {
            std::size_t const to = from + step - reach;
            unsigned const day = std::min(lengths[from], lengths[to]);
            unsigned long long const timeLeft = to == from ? time : time - time % 10'000;
            if ((start + steps[step]).GetTicks() != starts[to] + (day - 1) * c_day + timeLeft)
                FAIL() << "month " << from << " to " << to;
        }
    }
}

TEST(DateTime, FieldsThatNameNoDateAreRefused)
{
    int const refused[][6] = {
        { 1600, 12, 31, 23, 59, 59 }, { 30828, 1, 1, 0, 0, 0 }, { 2023, 2, 29, 0, 0, 0 }, { 2024, 13, 1, 0, 0, 0 },
        { 2024, 0, 1, 0, 0, 0 },      { 2024, 1, 0, 0, 0, 0 },  { 2024, 1, 1, 24, 0, 0 }, { 2024, 1, 1, 0, 60, 0 },
        { 2024, 1, 1, 0, 0, 60 },     { -1, 1, 1, 0, 0, 0 },
    };
    for (auto const& [year, month, day, hour, minute, second] : refused)
        EXPECT_THROW(At(year, month, day, hour, minute, second), Vek::ArgumentException) << year << ' ' << month;
    EXPECT_EQ(At(30827, 12, 31, 23, 59, 59).GetComponents().GetYear(), 30827);
    EXPECT_THROW(DateTime::GetDaysOfMonth(0, 2024), Vek::ArgumentException);
    EXPECT_THROW(DateTime::GetDaysOfMonth(13, 2024), Vek::ArgumentException);
    for (int year : { -400, -100, -4, 1900, 2000, 2023, 2024 })
        for (int month = 1; month <= 12; ++month)
            EXPECT_EQ(DateTime::GetDaysOfMonth(month, year), GetLength(month, year));
    EXPECT_THROW(DateTimeComponentInfo(2024, 1, 1, 0, 0, 0).GetDayOfWeek(), Vek::InvalidStateException);
}

TEST(DateTime, TicksEndBelowTwoToThe63)
{
    DateTimeComponentInfo const last = DateTime::FromTicks(c_end - 1).GetComponents();
    EXPECT_EQ(last.GetYear(), 30828);
    EXPECT_EQ(last.GetMonth() * 100 + last.GetDayOfMonth(), 914);
    EXPECT_EQ(last.GetHour() * 10'000 + last.GetMinute() * 100 + last.GetSecond(), 24'805);
    EXPECT_THROW(DateTime::FromTicks(c_end), Vek::ArgumentException);

    DateTime const before = DateTime() - Duration({}, 1, 0); // wraps around
    EXPECT_EQ(before.GetTicks(), 0 - c_second);
    EXPECT_GT(before, DateTime());
    EXPECT_THROW(before.GetComponents(), Vek::ArgumentException);
    EXPECT_THROW(before.CompareTo(DateTime(), DateTime::IgnoreYear), Vek::ArgumentException);
    EXPECT_THROW(before.GetMonthsForNextSeconds(1), Vek::ArgumentException);
    EXPECT_THROW(DateTime().GetMonthsForNextSeconds(-1), Vek::ArgumentException);
    EXPECT_THROW(before + Duration({}, 0, 1), Vek::ArgumentException);
    EXPECT_EQ(DateTime::FromTimeT(1'709'649'005), At(2024, 3, 5, 14, 30, 5)) << "taken as it is";
    EXPECT_EQ(DateTime::FromTimeT(-11'644'473'600), DateTime());
}

TEST(DateTime, SumsTakeTheExactPartFirst)
{
    Rows<DateTime, int, Decimal, DateTime, char const*> const rows = {
        { At(2024, 1, 31), 1, 86'400, At(2024, 3, 1), "1 February and one month" },
        { At(2024, 1, 1), 0, 0.00000005_dec, DateTime::FromTicks(At(2024, 1, 1).GetTicks() + 1), "half a tick up" },
        { At(2024, 1, 1), 0, -0.00000005_dec, DateTime::FromTicks(At(2024, 1, 1).GetTicks() - 1), "half a tick down" },
        { At(2024, 1, 1), 0, 0.000000049_dec, At(2024, 1, 1), "less than half" },
        { At(2024, 1, 1), 1, 0.0009999_dec, At(2024, 2, 1), "months drop what is below a millisecond" },
        { At(2024, 1, 1), 0, Decimal(1) / 0, At(2024, 1, 1), "an Infinity moves nothing" },
        { At(2024, 1, 1), 1, Decimal(0) / 0, At(2024, 2, 1), "a NaN moves nothing" },
        { At(2024, 1, 1), 0, 1e40_dec, At(2024, 1, 1), "nor what is no integer" },
    };
    for (auto const& [from, months, seconds, to, why] : rows)
    {
        SCOPED_TRACE(why);
        Duration const duration({}, seconds, months);
        EXPECT_EQ(from + duration, to);
        EXPECT_EQ(from - Duration({}, -seconds, -months), to);
    }
}

TEST(DateTime, MonthsNeverWrapIntoAValidYear)
{
    DateTime const start = At(2024, 1, 31);
    int const toFirst = -(2024 - 1601) * 12;
    int const toLast = (30827 - 2024) * 12 + 11;
    EXPECT_EQ((start + Duration({}, 0, toFirst)).GetComponents().GetYear(), 1601);
    EXPECT_EQ((start + Duration({}, 0, toLast)).GetComponents().GetYear(), 30827);
    for (int months : { toFirst - 1, toLast + 1, 786'432, -786'432, INT_MAX, INT_MIN })
    {
        EXPECT_THROW(start + Duration({}, 0, months), Vek::ArgumentException) << months;
        DateTime sum = start;
        EXPECT_FALSE(start.TryAdd(Duration({}, 0, months), sum)) << months;
        EXPECT_EQ(sum, start);
    }
    EXPECT_THROW(start - Duration({}, 0, INT_MIN), Vek::ArgumentException);
    EXPECT_EQ(start.GetDurationInSecondsForNextMonths(1, 0.00125_dec), 29 * 86'400 - 0.00025_dec);
}

TEST(DateTime, TryAddRefusesWhatTheSumWouldHide)
{
    DateTime const first;
    DateTime const last = DateTime::FromTicks(c_end - 1);
    DateTime const wrapped = first - Duration({}, 1, 0);
    Decimal const all(static_cast<long long>(c_end - 1), -7);
    Rows<DateTime, Decimal, int, bool, char const*> const rows = {
        { first, all, 0, true, "from the first tick to the last" },
        { first, all + 0.0000001_dec, 0, false, "one tick too far" },
        { last, -all - 0.0000001_dec, 0, false, "one tick too far back" },
        { last, 0.00000004_dec, 0, true, "rounded to nothing" },
        { first, -2 * all - 1, 0, false, "round once and back into the range" },
        { first, 1e33_dec, 0, false, "modulo 2^64 anything" },
        { first, 1e40_dec, 0, false, "an integer that is 0" },
        { first, Decimal(1) / 0, 0, false, "Infinity" },
        { first, Decimal(-1) / 0, 1, false, "-Infinity" },
        { first, Decimal(0) / 0, 0, false, "NaN" },
        { wrapped, 1, 0, false, "from no point in time" },
        { last, -86'400 * 300, 1, true, "back into the last whole year" },
        { last, 0, 1, false, "a month within the year that is cut" },
    };
    for (auto const& [from, seconds, months, isAdded, why] : rows)
    {
        SCOPED_TRACE(why);
        Duration const duration({}, seconds, months);
        DateTime sum = At(2024, 1, 1);
        EXPECT_EQ(from.TryAdd(duration, sum), isAdded);
        EXPECT_EQ(sum, isAdded ? from + duration : At(2024, 1, 1));
    }
}

TEST(DateTime, ComparesWithAndWithoutTheYear)
{
    DateTime const leapDay = At(2024, 2, 29, 10);
    Rows<DateTime, DateTime, int, int> const rows = {
        { At(2023, 3, 1), At(2024, 2, 28), -1, 1 },
        { leapDay, At(1999, 2, 28, 23, 59, 59), 1, 1 },
        { leapDay, At(2031, 3, 1), -1, -1 },
        { leapDay, At(1996, 2, 29, 10), 1, 0 },
        { leapDay, leapDay + Duration({}, 0.0009999_dec, 0), -1, 0 },
        { leapDay, leapDay + Duration({}, 0.001_dec, 0), -1, -1 },
        { DateTime::FromTicks(c_end - 1), At(2024, 9, 14), 1, 1 },
    };
    for (auto const& [a, b, exact, ignoringYear] : rows)
    {
        EXPECT_EQ(a.CompareTo(b, DateTime::Exact), exact);
        EXPECT_EQ(b.CompareTo(a, DateTime::Exact), -exact);
        EXPECT_EQ(a.CompareTo(b, DateTime::IgnoreYear), ignoringYear);
        EXPECT_EQ(b.CompareTo(a, DateTime::IgnoreYear), -ignoringYear);
    }
    EXPECT_THROW(leapDay.CompareTo(leapDay, static_cast<DateTime::ComparisonOptions>(2)), Vek::EnumOutOfRangeException);
}

TEST(DateTime, WholeMonthsOfSecondsCompareDaysOnly)
{
    Rows<DateTime, DateTime, int> const rows = {
        { At(2024, 1, 31), At(2024, 2, 29), 0 },        { At(2024, 1, 31), At(2024, 3, 31), 2 },
        { At(2024, 1, 15, 10), At(2024, 2, 15, 9), 1 }, { At(2024, 1, 15), At(2024, 1, 14), 0 },
        { At(2024, 3, 31), At(2024, 2, 29), -1 },       { At(2024, 3, 15), At(2024, 2, 16), 0 },
        { At(2024, 3, 15), At(2023, 3, 15), -12 },      { At(1601, 1, 1), At(30827, 12, 31), 350'723 },
    };
    for (auto const& [from, to, months] : rows)
    {
        Duration const between = to - from;
        EXPECT_EQ(from.GetMonthsForNextSeconds(between.GetExactComponent(Duration::Seconds)), months);
        EXPECT_EQ(between.GetReasonableMonths(), months);
        EXPECT_EQ(from + between, to);
        EXPECT_EQ(*between.GetStart(), from);
    }
}

TEST(DateTime, NowIsOnTheSystemsLocalClock)
{
    std::time_t const before = std::time(nullptr);
    DateTime const now = DateTime::Now();
    std::tm const local = *std::localtime(&before);
    DateTime const clock = At(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                              std::min(local.tm_sec, 59));
    Decimal const seconds = (now - clock).GetExact(Duration::Seconds);
    EXPECT_TRUE(seconds >= 0 && seconds < 60) << seconds.ToDouble();
    EXPECT_EQ(now.GetTicks() % 10'000, 0U);
}

} // namespace
