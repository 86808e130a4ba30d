#pragma once

#include <IXMLStreamer/Internal/NameKey.h>

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Values by name, found without making a string of the name. A handful of names is walked; above that an index is
/// kept. An entry keeps its address while others are added.
///
/// Documents repeat themselves, so every entry also knows which one was met behind it last time.
template <class T>
class NameTable
{
public:
    struct Entry
    {
        explicit Entry(std::string_view text) : name(text) {}

        NameKey name;
        T value{};
        mutable Entry const* successor = nullptr; // in the document read last
        mutable unsigned long long lastTag = 0;   // that had it, by the reader's count; 0 for none
        std::unique_ptr<Entry> following;         // in the order of registration
    };

    NameTable() = default;
    NameTable(NameTable const& other)
    {
        other.ForEach([this](Entry const& entry) { Add(entry.name.text) = entry.value; });
    }
    NameTable(NameTable&&) = default;
    NameTable& operator=(NameTable const&) = delete;
    NameTable& operator=(NameTable&&) = delete;
    ~NameTable()
    {
        while (m_first != nullptr)
            m_first = std::move(m_first->following); // one by one, since there may be very many
    }

    Entry const* Find(std::string_view name) const
    {
        if (m_count > c_mostWalked)
            return FindInIndex(name);
        for (Entry const* entry = m_first.get(); entry != nullptr; entry = entry->following.get())
            if (entry->name.text == name)
                return entry;
        return nullptr;
    }

    /// The value of `name`, which the table does not have yet. When it throws, the table is as before.
    T& Add(std::string_view name)
    {
        auto entry = std::make_unique<Entry>(name);
        Entry& added = *entry;
        if (m_count >= c_mostWalked)
            AddToIndex(added);
        (m_last == nullptr ? m_first : m_last->following) = std::move(entry);
        m_last = &added;
        ++m_count;
        return added.value;
    }

    T& FindOrAdd(std::string_view name)
    {
        Entry const* const found = Find(name);
        return found == nullptr ? Add(name) : const_cast<T&>(found->value);
    }

    /// Where the entry that was met first last time is remembered.
    Entry const** GetFirstPlace() const { return &m_firstMet; }

    void ForgetSuccessors() const
    {
        m_firstMet = nullptr;
        ForEach([](Entry const& entry) { entry.successor = nullptr; });
    }

private:
    static constexpr std::size_t c_mostWalked = 8;

    using Index = std::unordered_map<std::string_view, Entry const*>;

    template <class Action>
    void ForEach(Action const& action) const
    {
        for (Entry const* entry = m_first.get(); entry != nullptr; entry = entry->following.get())
            action(*entry);
    }

    Entry const* FindInIndex(std::string_view name) const
    {
        auto const found = m_index->find(name);
        return found == m_index->end() ? nullptr : found->second;
    }

    void AddToIndex(Entry const& added)
    {
        if (m_index == nullptr)
        {
            auto index = std::make_unique<Index>();
            ForEach([&index](Entry const& known) { index->emplace(known.name.text, &known); });
            m_index = std::move(index);
        }
        m_index->emplace(added.name.text, &added);
    }

    std::unique_ptr<Entry> m_first;
    Entry* m_last = nullptr;
    std::size_t m_count = 0;
    std::unique_ptr<Index> m_index; // of all, once there are more than are walked
    mutable Entry const* m_firstMet = nullptr;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
