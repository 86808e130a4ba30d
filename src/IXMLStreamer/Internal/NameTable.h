#pragma once

#include <IXMLStreamer/Internal/BlockPool.h>
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
/// Documents repeat themselves, so every entry also knows which one was met behind it last time; until then it takes
/// the one that was added behind it for that.
///
/// `Text` is what a name is held in: std::string, or std::string_view for names that live as long as the table.
template <class T, class Text>
class NameTable
{
public:
    struct Entry
    {
        explicit Entry(std::string_view text) : name(text) {}

        NameKey<Text> name;
        T value{};
        mutable Entry const* successor = nullptr; // in the document read last, see GetFirstPlace
        mutable unsigned long long lastTag = 0;   // that had it, by the reader's count; 0 for none
        Entry* following = nullptr;               // in the order of registration
    };

    /// Entries are made in `pool`, which outlives the table, unless that is null.
    explicit NameTable(BlockPool* pool) : m_pool(pool) {}
    NameTable(NameTable const&) = delete;
    NameTable& operator=(NameTable const&) = delete;
    ~NameTable()
    {
        while (m_first != nullptr)
            BlockPool::End(m_pool, std::exchange(m_first, m_first->following));
    }

    /// Adds copies of the other's entries; none of them may be here.
    void AddAll(NameTable const& other)
    {
        other.ForEach([this](Entry const& entry) { Add(entry.name.text) = entry.value; });
    }

    Entry const* Find(std::string_view name) const
    {
        if (m_count > c_mostWalked)
            return FindInIndex(name);
        for (Entry const* entry = m_first; entry != nullptr; entry = entry->following)
            if (entry->name.text == name)
                return entry;
        return nullptr;
    }

    /// The value of `name`, which the table does not have yet. When it throws, the table is as before.
    T& Add(std::string_view name)
    {
        Entry& added = *BlockPool::Make<Entry>(m_pool, name);
        if (m_count >= c_mostWalked)
            AddToIndex(added);
        (m_last == nullptr ? m_first : m_last->following) = &added;
        Entry const*& expected = m_last == nullptr ? m_firstMet : m_last->successor;
        if (expected == nullptr && added.name.head.isWholeAndAllLetters)
            expected = &added;
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
        for (Entry const* entry = m_first; entry != nullptr; entry = entry->following)
            action(*entry);
    }

    Entry const* FindInIndex(std::string_view name) const
    {
        auto const found = m_index->find(name);
        return found == m_index->end() ? nullptr : found->second;
    }

    void AddToIndex(Entry& added)
    {
        try
        {
            if (m_index == nullptr)
            {
                auto index = std::make_unique<Index>();
                ForEach([&index](Entry const& known) { index->emplace(known.name.text, &known); });
                m_index = std::move(index);
            }
            m_index->emplace(added.name.text, &added);
        }
        catch (...)
        {
            BlockPool::End(m_pool, &added);
            throw;
        }
    }

    BlockPool* m_pool;
    Entry* m_first = nullptr;
    Entry* m_last = nullptr;
    std::size_t m_count = 0;
    std::unique_ptr<Index> m_index; // of all, once there are more than are walked
    mutable Entry const* m_firstMet = nullptr;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
