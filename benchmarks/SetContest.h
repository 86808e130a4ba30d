#pragma once

#include "Contest.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

/// Sets of a million integers. A contestant has the type Set with Add and Contains.
namespace Benchmarks
{

constexpr int c_setSize = 1'000'000;

struct SetValues
{
    std::vector<int> scattered;
    std::vector<int> ascending;
    std::vector<int> sought; // half of them among the scattered ones

    SetValues() : scattered(c_setSize), ascending(c_setSize)
    {
        std::mt19937 random(1);
        for (int& value : scattered)
            value = static_cast<int>(random());
        for (int i = 0; i < c_setSize; ++i)
            ascending[static_cast<std::size_t>(i)] = 2 * i;
        sought = scattered;
        for (std::size_t i = 0; i < sought.size(); i += 2)
            sought[i] = static_cast<int>(random());
        std::shuffle(sought.begin(), sought.end(), random);
    }
};

/// Made when the first of these runs, so that the other benchmarks start without them.
inline SetValues const& GetSetValues()
{
    static SetValues const s_values;
    return s_values;
}

template <class Contestant>
typename Contestant::Set MakeSet(std::vector<int> const& values)
{
    typename Contestant::Set set;
    for (int value : values)
        Contestant::Add(set, value);
    return set;
}

/// Of the scattered values, made when a benchmark that asks it runs.
template <class Contestant>
typename Contestant::Set const& GetScatteredSet()
{
    static auto const s_set = MakeSet<Contestant>(GetSetValues().scattered);
    return s_set;
}

template <class Contestant>
void RegisterSet(std::string const& name)
{
    Items const all{ c_setSize };
    auto const countFound = [](typename Contestant::Set const& set)
    {
        int count = 0;
        for (int value : GetSetValues().sought)
            count += Contestant::Contains(set, value) ? 1 : 0;
        return count;
    };
    Register(
        "IntRangeAddScattered/" + name, all, [] { return MakeSet<Contestant>(GetSetValues().scattered); }, countFound);
    Register(
        "IntRangeAddAscending/" + name, all, [] { return MakeSet<Contestant>(GetSetValues().ascending); }, countFound);
    Register("IntRangeFind/" + name, all, [=] { return countFound(GetScatteredSet<Contestant>()); });
}

template <class Contestant>
void RegisterWalk(std::string const& name)
{
    auto const addUp = []
    {
        unsigned int sum = 0;
        for (int value : GetScatteredSet<Contestant>())
            sum += static_cast<unsigned int>(value);
        return sum;
    };
    Register("IntRangeWalk/" + name, Items{ c_setSize }, addUp);
}

} // namespace Benchmarks
