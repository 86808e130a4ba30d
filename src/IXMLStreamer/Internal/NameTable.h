#pragma once

#include <IXMLStreamer/Internal/NameKey.h>
#include <IXMLStreamer/Internal/SharedObject.h>

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Values by name, found without making a string of the name. A handful of names is walked; above that an index is
/// kept. An entry keeps its address while others are added, and lives on while its entries are held.
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

    class Entries
    {
    public:
        Entries() = default;
        Entries(Entries&&) = default;
        Entries& operator=(Entries&&) = delete;
        ~Entries()
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

        /// When it throws, all is as before.
        Entry& Add(std::string_view name)
        {
            auto entry = std::make_unique<Entry>(name);
            Entry& added = *entry;
            if (m_count == c_mostWalked)
                for (Entry* known = m_first.get(); known != nullptr; known = known->following.get())
                    m_index.emplace(known->name.text, known);
            if (m_count >= c_mostWalked)
                m_index.emplace(added.name.text, &added);
            (m_last == nullptr ? m_first : m_last->following) = std::move(entry);
            m_last = &added;
            ++m_count;
            return added;
        }

        template <class Action>
        void ForEach(Action const& action) const
        {
            for (Entry const* entry = m_first.get(); entry != nullptr; entry = entry->following.get())
                action(*entry);
        }

        void ForgetSuccessors() const
        {
            first = nullptr;
            ForEach([](Entry const& entry) { entry.successor = nullptr; });
        }

        mutable Entry const* first = nullptr; // that was met last time

    private:
        static constexpr std::size_t c_mostWalked = 8;

        Entry const* FindInIndex(std::string_view name) const
        {
            auto const found = m_index.find(name);
            return found == m_index.end() ? nullptr : found->second;
        }

        std::unique_ptr<Entry> m_first;
        Entry* m_last = nullptr;
        std::size_t m_count = 0;
        std::unordered_map<std::string_view, Entry*> m_index; // of all, once there are more than are walked
    };

    NameTable() = default;
    NameTable(NameTable const& other)
    {
        if (other.m_entries)
            other.m_entries->ForEach([this](Entry const& entry) { Add(entry.name.text) = entry.value; });
    }
    NameTable& operator=(NameTable const& other)
    {
        NameTable copy(other);
        m_entries.Swap(copy.m_entries);
        return *this;
    }
    ~NameTable() = default;

    /// Empty before the first Add; an assignment to the table replaces them.
    SharedObject<Entries> const& GetEntries() const { return m_entries; }

    Entry const* Find(std::string_view name) const { return m_entries ? m_entries->Find(name) : nullptr; }

    /// The value of `name`, which the table does not have yet. When it throws, the table is as before.
    T& Add(std::string_view name)
    {
        if (!m_entries)
            m_entries = SharedObject<Entries>(Entries());
        return m_entries->Add(name).value;
    }

    void ForgetSuccessors() const
    {
        if (m_entries)
            m_entries->ForgetSuccessors();
    }

    T& FindOrAdd(std::string_view name)
    {
        Entry const* const found = Find(name);
        return found == nullptr ? Add(name) : const_cast<T&>(found->value);
    }

private:
    SharedObject<Entries> m_entries;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
