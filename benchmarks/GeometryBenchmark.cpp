// Sets of integers beside std::set and Boost's interval set; hashes of colours beside a loop over their bytes.

#include <Utilities/ColorBase.h>
#include <Utilities/IntRange.h>

#include <benchmark/benchmark.h>
#include <boost/icl/interval_set.hpp>

#include <algorithm>
#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;
using BoostSet = boost::icl::interval_set<int>;

constexpr int c_size = 1'000'000;

void Add(IntRange& set, int value)
{
    set.AddRange(value, value);
}

void Add(std::set<int>& set, int value)
{
    set.insert(value);
}

void Add(BoostSet& set, int value)
{
    set.add(value);
}

bool Contains(IntRange const& set, int value)
{
    return set.Contains(value);
}

bool Contains(std::set<int> const& set, int value)
{
    return set.contains(value);
}

bool Contains(BoostSet const& set, int value)
{
    return boost::icl::contains(set, value);
}

template <class Set>
Set MakeSet(std::vector<int> const& values)
{
    Set set;
    for (int value : values)
        Add(set, value);
    return set;
}

template <class Set>
int CountFound(Set const& set, std::vector<int> const& values)
{
    int count = 0;
    for (int value : values)
        count += Contains(set, value) ? 1 : 0;
    return count;
}

template <class Set>
unsigned int AddUp(Set const& set)
{
    unsigned int sum = 0;
    for (int value : set)
        sum += static_cast<unsigned int>(value);
    return sum;
}

template <class Work>
void Register(std::string const& name, int items, Work const& work)
{
    auto const run = [=](benchmark::State& state)
    {
        benchmark::DoNotOptimize(work()); // its values are made here
        for (auto _ : state)
        {
            auto const result = work();
            benchmark::DoNotOptimize(&result);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * items);
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
}

struct Values
{
    std::vector<int> scattered;
    std::vector<int> ascending;
    std::vector<int> sought; // half of them among the scattered ones

    Values() : scattered(c_size), ascending(c_size)
    {
        std::mt19937 random(1);
        for (int& value : scattered)
            value = static_cast<int>(random());
        for (int i = 0; i < c_size; ++i)
            ascending[static_cast<std::size_t>(i)] = 2 * i;
        sought = scattered;
        for (std::size_t i = 0; i < sought.size(); i += 2)
            sought[i] = static_cast<int>(random());
        std::shuffle(sought.begin(), sought.end(), random);
    }
};

/// Made when the first of these runs, so that the other benchmarks start without them.
Values const& GetValues()
{
    static Values const s_values;
    return s_values;
}

template <class Set>
Set const& GetScatteredSet()
{
    static Set const s_set = MakeSet<Set>(GetValues().scattered);
    return s_set;
}

template <class Set>
void RegisterSet(std::string const& name)
{
    Register("IntRangeAddScattered/" + name, c_size, [] { return MakeSet<Set>(GetValues().scattered); });
    Register("IntRangeAddAscending/" + name, c_size, [] { return MakeSet<Set>(GetValues().ascending); });
    Register("IntRangeFind/" + name, c_size, [] { return CountFound(GetScatteredSet<Set>(), GetValues().sought); });
    if constexpr (!std::is_same_v<Set, BoostSet>) // it walks its intervals
        Register("IntRangeWalk/" + name, c_size, [] { return AddUp(GetScatteredSet<Set>()); });
}

unsigned long long HashPlainly(ColorBase<BGRAChannel> const& color)
{
    unsigned long long hash = 0xCBF29CE484222325;
    for (int i = 0; i < 4; ++i)
        hash = (hash ^ color.Get(static_cast<BGRAChannel>(i))) * 0x100000001B3;
    return hash;
}

template <class Hash>
void RegisterHash(std::string const& name, Hash const& hash)
{
    std::mt19937 random(1);
    std::vector<ColorBase<BGRAChannel>> colors;
    for (int i = 0; i < 4096; ++i)
        colors.emplace_back(static_cast<int>(random()), 0, 0, 0);
    Register("ColorHash/" + name, static_cast<int>(colors.size()),
             [=]
             {
                 unsigned long long sum = 0;
                 for (ColorBase<BGRAChannel> const& color : colors)
                     sum += hash(color);
                 return sum;
             });
}

bool const c_isRegistered = []
{
    RegisterSet<IntRange>("ours");
    RegisterSet<std::set<int>>("std_set");
    RegisterSet<BoostSet>("boost_icl");
    RegisterHash("ours", [](auto const& color) { return color.GetHashCode(); });
    RegisterHash("plain_loop", HashPlainly);
    return true;
}();

} // namespace

} // namespace Benchmarks
