#include <Utilities/TimeMeasure.h>
#include <Utilities/TimeMeasureContainer.h>

using namespace Vek::Framework::Utilities;

namespace
{

constexpr long long c_most = std::numeric_limits<long long>::max();

/// Gives the registry a clock that answers the given times one after the other, then the last one.
class ClockScope
{
public:
    explicit ClockScope(std::vector<long long> times)
    {
        TimeMeasureContainer::SetCurrentNanoSecondsGetter([times, next = std::size_t{}]() mutable
                                                          { return times[std::min(next++, times.size() - 1)]; });
    }

    ~ClockScope() { TimeMeasureContainer::ResetCurrentNanoSecondsGetter(); }
};

std::vector<std::string> GetNames()
{
    std::vector<std::string> names;
    TimeMeasureContainer::ForEachMeasure([&](auto&, auto& name) { names.push_back(name); });
    return names;
}

std::string GetLine(std::string const& name)
{
    std::string const results = TimeMeasureContainer::GetResults();
    std::size_t const begin = ("\n" + results).find("\n" + name + " ");
    return begin == std::string::npos ? "" : results.substr(begin, results.find('\n', begin) - begin);
}

} // namespace

TEST(TimeMeasure, AddsUpByNameAndReports)
{
    ClockScope const clock({ 100, 350, 400, 410, 415, 920 });
    {
        TimeMeasure const measure("TimeMeasureTest.Add");
        EXPECT_EQ(GetLine("TimeMeasureTest.Add"), "TimeMeasureTest.Add No measures");
    }
    {
        TimeMeasure const outer(std::string("TimeMeasureTest.Add"));
        TimeMeasure const inner("TimeMeasureTest.Add"); // ends first, by 5
        EXPECT_EQ(&outer.GetMeasureInfo(), &inner.GetMeasureInfo());
    }
    // 250 + 5 + 520, truncated by three
    EXPECT_EQ(GetLine("TimeMeasureTest.Add"), "TimeMeasureTest.Add 3 measures: 258 ns (avg), 775 ns (total)");
    TimeMeasureContainer::ForEachMeasure(
        [](TimeMeasureInfo& info, std::string const& name)
        {
            if (name == "TimeMeasureTest.Add")
                info.Reset();
        });
    EXPECT_EQ(GetLine("TimeMeasureTest.Add"), "TimeMeasureTest.Add No measures");
}

TEST(TimeMeasure, WrapsAroundAtTheEndsOfItsRange)
{
    TimeMeasureInfo info;
    info.AddMeasure(c_most);
    info.AddMeasure(2);
    EXPECT_EQ(info.GetTotalTimeInNanoSeconds(), -c_most);
    EXPECT_EQ(info.GetLastResultInNanoSeconds(), 2);
    ClockScope const clock({ c_most, -c_most });
    {
        TimeMeasure const measure("TimeMeasureTest.Wrap");
    }
    EXPECT_EQ(TimeMeasure("TimeMeasureTest.Wrap").GetMeasureInfo().GetLastResultInNanoSeconds(), 2);
    EXPECT_EQ(TimeMeasureInfo::ConvertFromNanoSecondsToSeconds(1500000000), 1.5);
}

TEST(TimeMeasure, TheSteadyClockRuns)
{
    TimeMeasure const measure("TimeMeasureTest.Steady");
    do
    {
        TimeMeasure const inner("TimeMeasureTest.Steady");
    } while (measure.GetMeasureInfo().GetTotalTimeInNanoSeconds() <= 0);
}

TEST(TimeMeasure, TellsNamesApartAndKeepsTheirOrderAndPlace)
{
    // Names of every length up to several steps of the hash, with every byte changed in turn.
    std::vector<std::string> order = GetNames();
    std::size_t const before = order.size();
    for (std::size_t size = 0; size <= 33; ++size)
        for (std::size_t changed = 0; changed <= size; ++changed)
        {
            std::string name(size, changed < size ? 'n' : '\0');
            if (changed < size)
                name[changed] = '\xFF';
            order.push_back(name);
        }
    std::map<TimeMeasureInfo const*, std::string> places;
    for (int round = 0; round < 2; ++round)
        for (std::size_t i = before; i < order.size(); ++i)
            EXPECT_EQ(places.emplace(&TimeMeasure(order[i]).GetMeasureInfo(), order[i]).first->second, order[i]);
    EXPECT_EQ(places.size(), order.size() - before);
    EXPECT_EQ(GetNames(), order);
    EXPECT_EQ(places[&TimeMeasure("").GetMeasureInfo()], "");
    EXPECT_THROW(TimeMeasure(static_cast<char const*>(nullptr)), Vek::ArgumentException);
}

TEST(TimeMeasure, LooksAtTheTextAndNotWhereItStands)
{
    char buffer[] = "TimeMeasureTest.Buffer1";
    TimeMeasureInfo const* const first = &TimeMeasure(buffer).GetMeasureInfo();
    buffer[sizeof buffer - 2] = '2';
    TimeMeasureInfo const* const second = &TimeMeasure(buffer).GetMeasureInfo();
    EXPECT_NE(second, first);
    EXPECT_EQ(&TimeMeasure("TimeMeasureTest.Buffer1").GetMeasureInfo(), first);
    EXPECT_EQ(&TimeMeasure(std::string(buffer)).GetMeasureInfo(), second);
    EXPECT_NE(&TimeMeasure(std::string(buffer, sizeof buffer)).GetMeasureInfo(), second) << "a 0 behind it";
    EXPECT_EQ(&TimeMeasure(buffer).GetMeasureInfo(), second);
}

TEST(TimeMeasure, VisitorsSeeTheNamesThatTheyAdd)
{
    int left = 100;
    std::size_t visited = 0;
    auto const visit = [&](auto&, auto&)
    {
        ++visited;
        if (left > 0)
            TimeMeasure("TimeMeasureTest.Visit" + std::to_string(left--));
    };
    TimeMeasureContainer::ForEachMeasure(visit);
    EXPECT_EQ(GetNames().back(), "TimeMeasureTest.Visit1");
    EXPECT_EQ(GetNames().size(), visited);
}

TEST(TimeMeasure, ClocksThatThrow)
{
    TimeMeasureContainer::SetCurrentNanoSecondsGetter({});
    EXPECT_THROW(TimeMeasure("TimeMeasureTest.Throw"), std::bad_function_call);
    {
        ClockScope const clock({ 0 });
        TimeMeasure const measure("TimeMeasureTest.Throw");
        TimeMeasureContainer::SetCurrentNanoSecondsGetter([]() -> long long { throw 5; });
    }
    EXPECT_EQ(GetLine("TimeMeasureTest.Throw"), "TimeMeasureTest.Throw No measures");
    EXPECT_NO_THROW(TimeMeasure("TimeMeasureTest.Throw"));
}

TEST(TimeMeasure, ClocksMayReplaceThemselvesAndMeasureAtTheirEnd)
{
    auto const measureLast = [](int* number)
    {
        TimeMeasure const measure("TimeMeasureTest.LastWords");
        delete number;
    };
    auto kept = std::shared_ptr<int>(new int(7), measureLast);
    TimeMeasureContainer::SetCurrentNanoSecondsGetter(
        [kept = std::move(kept)]() -> long long
        {
            TimeMeasureContainer::SetCurrentNanoSecondsGetter([] { return 1009; });
            return *kept;
        });
    {
        TimeMeasure const measure("TimeMeasureTest.Replace");
    }
    TimeMeasureContainer::ResetCurrentNanoSecondsGetter();
    EXPECT_EQ(TimeMeasure("TimeMeasureTest.Replace").GetMeasureInfo().GetLastResultInNanoSeconds(), 1002);
    EXPECT_EQ(TimeMeasure("TimeMeasureTest.LastWords").GetMeasureInfo().GetMeasuresCount(), 1);
}
