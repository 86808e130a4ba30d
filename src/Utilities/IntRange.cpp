#include <Utilities/IntRange.h>

#include <algorithm>
#include <new>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

// 2 KB: adding moves half of it on average, which takes less time than finding the place.
constexpr std::size_t c_leafSize = 256;

/// Whether a gap lies between the interval and `value` behind it. Without one, they are one interval.
bool EndsBefore(IntRange::Interval const& interval, int value) noexcept
{
    return static_cast<long long>(interval.to) + 1 < value;
}

bool BeginsBehind(IntRange::Interval const& interval, int value) noexcept
{
    return interval.from > static_cast<long long>(value) + 1;
}

/// So that one more element can be inserted without a failure.
template <class T>
void MakeRoom(std::vector<T>& elements)
{
    if (elements.size() == elements.capacity())
        elements.reserve(2 * elements.size() + 1);
}

/// How many of the elements in front are as asked for; behind them is none.
template <class T, class Predicate>
std::size_t CountFront(std::vector<T> const& elements, Predicate const& isInFront) noexcept
{
    auto const behind = std::partition_point(elements.begin(), elements.end(), isInFront);
    return static_cast<std::size_t>(behind - elements.begin());
}

template <class T>
auto At(std::vector<T>& elements, std::size_t index) noexcept
{
    return elements.begin() + static_cast<std::ptrdiff_t>(index);
}

} // namespace

/// An interval's place, or one behind the last of its leaf.
struct IntRange::Place
{
    std::size_t leaf;
    std::size_t index;
};

IntRange::IntRange() noexcept = default;
IntRange::IntRange(IntRange const&) = default;
IntRange::IntRange(IntRange&&) noexcept = default;
IntRange& IntRange::operator=(IntRange&&) noexcept = default;
IntRange::~IntRange() = default;

IntRange::IntRange(int from, int to)
{
    AddRange(from, to);
}

IntRange& IntRange::operator=(IntRange const& other)
{
    *this = IntRange(other);
    return *this;
}

void IntRange::AddRange(int from, int to)
{
    if (from > to)
        return;
    Place const place = FindEndingFrom(from);
    bool const isBehindLeaf = place.leaf < m_leaves.size() && place.index == m_leaves[place.leaf].size();
    Place const touched = isBehindLeaf ? Place{ place.leaf + 1, 0 } : place;
    if (IsTouched(touched, to))
        Widen(touched, { from, to });
    else
        Insert(place, { from, to });
}

/// The leaf where `value` is or would stand. There must be one.
std::size_t IntRange::FindLeaf(int value) const noexcept
{
    std::size_t const behind = CountFront(m_firsts, [value](int first) { return first <= value; });
    return behind == 0 ? 0 : behind - 1;
}

/// The first interval that ends at `value` or behind it or right before it. If there is none in the leaf where `value`
/// would stand, the place behind that leaf's last.
IntRange::Place IntRange::FindEndingFrom(int value) const noexcept
{
    if (m_leaves.empty())
        return { 0, 0 };
    std::size_t const leaf = FindLeaf(value);
    return { leaf,
             CountFront(m_leaves[leaf], [value](Interval const& interval) { return EndsBefore(interval, value); }) };
}

/// Whether an interval up to `to` reaches that at `place`, or its neighbour.
bool IntRange::IsTouched(Place place, int to) const noexcept
{
    return place.leaf < m_leaves.size() && !BeginsBehind(m_leaves[place.leaf][place.index], to);
}

void IntRange::Insert(Place place, Interval interval)
{
    if (m_leaves.empty())
    {
        Leaf first(1, interval);
        MakeRoom(m_leaves);
        MakeRoom(m_firsts);
        m_leaves.push_back(std::move(first));
        m_firsts.push_back(interval.from);
        return;
    }
    if (m_leaves[place.leaf].size() == c_leafSize)
        place = Split(place);
    Leaf& leaf = m_leaves[place.leaf];
    leaf.insert(At(leaf, place.index), interval);
    m_firsts[place.leaf] = leaf.front().from;
}

/// Makes two leaves of a full one and answers where `place` is then. Values that arrive in ascending order leave full
/// leaves behind: their new leaf is empty until the interval that it is made for is there, which no longer fails then.
IntRange::Place IntRange::Split(Place place)
{
    std::size_t const cut = place.index == c_leafSize ? c_leafSize : c_leafSize / 2;
    Leaf upper;
    upper.reserve(c_leafSize);
    MakeRoom(m_leaves);
    MakeRoom(m_firsts);
    Leaf& lower = m_leaves[place.leaf];
    upper.assign(At(lower, cut), lower.end());
    lower.resize(cut);
    m_firsts.insert(At(m_firsts, place.leaf + 1), upper.empty() ? lower.back().to : upper.front().from);
    m_leaves.insert(At(m_leaves, place.leaf + 1), std::move(upper));
    return place.index <= cut && cut != c_leafSize ? place : Place{ place.leaf + 1, place.index - cut };
}

void IntRange::Widen(Place place, Interval interval) noexcept
{
    Interval& widened = m_leaves[place.leaf][place.index];
    widened.from = std::min(widened.from, interval.from);
    m_firsts[place.leaf] = m_leaves[place.leaf].front().from;
    if (interval.to > widened.to)
    {
        widened.to = interval.to;
        Absorb(place);
    }
}

/// Takes what the interval now reaches into it.
void IntRange::Absorb(Place place) noexcept
{
    Interval& widened = m_leaves[place.leaf][place.index];
    int const reach = widened.to;
    std::size_t const nextLeaf = place.leaf + 1;
    std::size_t index = place.index + 1;
    std::size_t at = place.leaf;
    for (; at != m_leaves.size(); ++at, index = 0)
    {
        Leaf& leaf = m_leaves[at];
        auto const first = At(leaf, index);
        auto const last = std::partition_point(
            first, leaf.end(), [reach](Interval const& interval) { return !BeginsBehind(interval, reach); });
        if (last != first)
            widened.to = std::max(widened.to, std::prev(last)->to);
        bool const isRestLeft = last != leaf.end();
        leaf.erase(first, last);
        m_firsts[at] = leaf.empty() ? reach : leaf.front().from;
        if (isRestLeft)
            break;
    }
    if (at > nextLeaf)
    {
        m_leaves.erase(At(m_leaves, nextLeaf), At(m_leaves, at));
        m_firsts.erase(At(m_firsts, nextLeaf), At(m_firsts, at));
    }
}

bool IntRange::Contains(int value) const noexcept
{
    if (m_leaves.empty())
        return false;
    Leaf const& leaf = m_leaves[FindLeaf(value)];
    std::size_t const index = CountFront(leaf, [value](Interval const& interval) { return interval.to < value; });
    return index != leaf.size() && leaf[index].from <= value;
}

unsigned long long IntRange::GetCount() const noexcept
{
    unsigned long long count = 0;
    VisitIntervals(
        [&count](Interval const& interval)
        { count += static_cast<unsigned long long>(static_cast<long long>(interval.to) - interval.from + 1); });
    return count;
}

bool operator==(IntRange const& a, IntRange const& b) noexcept
{
    // The leaves are cut as the values arrived, so only what they hold counts.
    std::size_t leaf = 0;
    std::size_t index = 0;
    for (IntRange::Leaf const& ours : a.m_leaves)
        for (IntRange::Interval const& interval : ours)
        {
            if (leaf == b.m_leaves.size() || !(b.m_leaves[leaf][index] == interval))
                return false;
            if (++index == b.m_leaves[leaf].size())
            {
                ++leaf;
                index = 0;
            }
        }
    return leaf == b.m_leaves.size();
}

IntRange const& IntRange::Empty() noexcept
{
    // Never destroyed, and nothing is lost: it holds no memory.
    alignas(IntRange) static unsigned char s_memory[sizeof(IntRange)];
    static IntRange const* const s_empty = new (s_memory) IntRange;
    return *s_empty;
}

} // namespace Vek::Framework::Utilities
