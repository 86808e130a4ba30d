#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// Pointers in the order of their registration. While they are walked, any of them may come and go: those that came are
/// not visited, those that left neither, not even when they came again.
template <class T>
class SerialList
{
public:
    using Serial = unsigned long long;

    Serial Add(T& item)
    {
        m_entries.push_back({ m_last + 1, &item });
        return ++m_last;
    }

    bool Contains(T const& item) const { return Find(item) != m_entries.end(); }

    void Remove(T const& item)
    {
        auto const found = Find(item);
        if (found != m_entries.end())
            m_entries.erase(found);
    }

    template <class Action>
    void ForEach(Action const& action) const
    {
        Serial const last = m_last;
        for (auto entry = FindNext(0); entry != m_entries.end() && entry->serial <= last;)
        {
            Serial const serial = entry->serial;
            action(*entry->item);
            entry = FindNext(serial);
        }
    }

private:
    struct Entry
    {
        Serial serial;
        T* item;
    };

    auto Find(T const& item) const
    {
        return std::find_if(m_entries.begin(), m_entries.end(),
                            [&item](Entry const& entry) { return entry.item == &item; });
    }

    auto FindNext(Serial serial) const
    {
        return std::upper_bound(m_entries.begin(), m_entries.end(), serial,
                                [](Serial value, Entry const& entry) { return value < entry.serial; });
    }

    std::vector<Entry> m_entries; // rising serials
    Serial m_last = 0;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
