#pragma once

#include <VekApi.h>

#include <cstddef>
#include <iterator>
#include <vector>

namespace Vek::Framework::Utilities
{

/// A set of integers, filled from closed ranges and walked in ascending order.
///
/// Shape:   owned; copying copies it, moving leaves the source empty.
/// Cost:    kept as intervals with gaps between them, so a range of any length is one entry and joins its neighbours;
///          adding and looking up take some hundred nanoseconds among a million of them, walking one step a value.
/// Validity: adding anything makes every iterator of this set invalid.
/// Errors:  std::bad_alloc when an entry finds no room; the set is as it was then.
class VEK_API IntRange
{
public:
    /// All integers from `from` to `to`, both included.
    struct Interval
    {
        int from;
        int to;

        friend bool operator==(Interval const& a, Interval const& b) noexcept = default;
    };

private:
    using Leaf = std::vector<Interval>;

public:
    /// Goes through the values one by one, in both directions. A value is not stored anywhere: `*i` answers a copy.
    class Iterator
    {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        using pointer = int const*;
        using reference = int;

        Iterator() noexcept = default;

        int operator*() const noexcept { return m_value; }
        Iterator& operator++() noexcept;
        Iterator operator++(int) noexcept;
        Iterator& operator--() noexcept;
        Iterator operator--(int) noexcept;

        friend bool operator==(Iterator const& a, Iterator const& b) noexcept
        {
            return a.m_interval == b.m_interval && a.m_value == b.m_value;
        }

    private:
        friend class IntRange;

        Iterator(Leaf const* leaf, Leaf const* end) noexcept;

        void Enter() noexcept;

        Leaf const* m_leaf = nullptr;
        Leaf const* m_end = nullptr;
        Interval const* m_interval = nullptr; // none at the end
        int m_value = 0;                      // 0 at the end
    };

    using iterator = Iterator;
    using const_iterator = Iterator;
    using value_type = int;

    /// Empty.
    IntRange() noexcept;
    /// As AddRange.
    IntRange(int from, int to);
    IntRange(IntRange const& other);
    IntRange(IntRange&& other) noexcept;
    IntRange& operator=(IntRange const& other);
    IntRange& operator=(IntRange&& other) noexcept;
    ~IntRange();

    /// Adds every integer from `from` to `to`, both included; those already there stay once. `from` > `to` adds
    /// nothing.
    void AddRange(int from, int to);

    bool Contains(int value) const noexcept;

    /// How many values there are, up to 2^32.
    unsigned long long GetCount() const noexcept;

    /// Calls `visit` with the values as the fewest Intervals that hold them, in ascending order. It must not change the
    /// set.
    template <class Visitor>
    void VisitIntervals(Visitor&& visit) const
    {
        for (Leaf const& leaf : m_leaves)
            for (Interval const& interval : leaf)
                visit(interval);
    }

    Iterator begin() const noexcept { return { m_leaves.data(), m_leaves.data() + m_leaves.size() }; }
    Iterator end() const noexcept { return { m_leaves.data() + m_leaves.size(), m_leaves.data() + m_leaves.size() }; }

    /// The same values.
    friend VEK_API bool operator==(IntRange const& a, IntRange const& b) noexcept;

    /// Holds nothing; lives as long as the program.
    static IntRange const& Empty() noexcept;

private:
    struct Place;

    std::size_t FindLeaf(int value) const noexcept;
    Place FindEndingFrom(int value) const noexcept;
    bool IsTouched(Place place, int to) const noexcept;
    void Insert(Place place, Interval interval);
    Place Split(Place place);
    void Widen(Place place, Interval interval) noexcept;
    void Absorb(Place place) noexcept;

    // Two levels: leaves of at most c_leafSize intervals, none of them empty, and the first value of each leaf.
    std::vector<Leaf> m_leaves;
    std::vector<int> m_firsts;
};

inline IntRange::Iterator::Iterator(Leaf const* leaf, Leaf const* end) noexcept : m_leaf(leaf), m_end(end)
{
    Enter();
}

/// At the front of the leaf, or at the end.
inline void IntRange::Iterator::Enter() noexcept
{
    m_interval = m_leaf == m_end ? nullptr : m_leaf->data();
    m_value = m_leaf == m_end ? 0 : m_interval->from;
}

inline IntRange::Iterator& IntRange::Iterator::operator++() noexcept
{
    if (m_value != m_interval->to)
    {
        ++m_value;
        return *this;
    }
    if (++m_interval != m_leaf->data() + m_leaf->size())
    {
        m_value = m_interval->from;
        return *this;
    }
    ++m_leaf;
    Enter();
    return *this;
}

inline IntRange::Iterator& IntRange::Iterator::operator--() noexcept
{
    if (m_interval != nullptr && m_value != m_interval->from)
    {
        --m_value;
        return *this;
    }
    if (m_interval == nullptr || m_interval == m_leaf->data())
    {
        --m_leaf;
        m_interval = m_leaf->data() + m_leaf->size();
    }
    --m_interval;
    m_value = m_interval->to;
    return *this;
}

inline IntRange::Iterator IntRange::Iterator::operator++(int) noexcept
{
    Iterator const before = *this;
    ++*this;
    return before;
}

inline IntRange::Iterator IntRange::Iterator::operator--(int) noexcept
{
    Iterator const before = *this;
    --*this;
    return before;
}

} // namespace Vek::Framework::Utilities
