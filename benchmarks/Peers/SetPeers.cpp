// std::set and Boost's interval set with the values of GeometryBenchmark.cpp.

#include "SetContest.h"

#include <boost/icl/interval_set.hpp>

#include <set>

namespace Benchmarks
{

namespace
{

struct StdSet
{
    using Set = std::set<int>;
    static void Add(Set& set, int value) { set.insert(value); }
    static bool Contains(Set const& set, int value) { return set.contains(value); }
};

struct BoostSet
{
    using Set = boost::icl::interval_set<int>;
    static void Add(Set& set, int value) { set.add(value); }
    static bool Contains(Set const& set, int value) { return boost::icl::contains(set, value); }
};

bool const c_isRegistered = []
{
    RegisterSet<StdSet>("std_set");
    RegisterWalk<StdSet>("std_set");
    RegisterSet<BoostSet>("boost_icl"); // it walks its intervals, not its values
    return true;
}();

} // namespace

} // namespace Benchmarks
