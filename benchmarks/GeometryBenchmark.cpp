// Sets of integers; hashes of colours beside a loop over their bytes.

#include "SetContest.h"

#include <Utilities/ColorBase.h>
#include <Utilities/IntRange.h>

#include <random>
#include <string>
#include <vector>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;

struct OurSet
{
    using Set = IntRange;
    static void Add(Set& set, int value) { set.AddRange(value, value); }
    static bool Contains(Set const& set, int value) { return set.Contains(value); }
};

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
    Register("ColorHash/" + name, Items{ colors.size() },
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
    RegisterSet<OurSet>("ours");
    RegisterWalk<OurSet>("ours");
    RegisterHash("ours", [](auto const& color) { return color.GetHashCode(); });
    RegisterHash("plain_loop", HashPlainly);
    return true;
}();

} // namespace

} // namespace Benchmarks
