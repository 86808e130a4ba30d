#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Values by name, found without making a string of the name. A value keeps its address while others are added.
/// A handful of names is walked; above that an index is kept.
template <class T>
class NameTable
{
public:
    NameTable() = default;
    NameTable(NameTable const& other)
    {
        for (auto const& entry : other.m_entries)
            Add(entry->name) = entry->value;
    }
    NameTable& operator=(NameTable const& other)
    {
        NameTable copy(other);
        m_entries.swap(copy.m_entries);
        m_index.swap(copy.m_index);
        return *this;
    }
    ~NameTable() = default;

    T const* Find(std::string_view name) const
    {
        if (m_entries.size() <= c_mostWalked)
        {
            for (auto const& entry : m_entries)
                if (entry->name == name)
                    return &entry->value;
            return nullptr;
        }
        auto const found = m_index.find(name);
        return found == m_index.end() ? nullptr : &found->second->value;
    }

    /// The value of `name`, which the table does not have yet. When it throws, the table is as before.
    T& Add(std::string_view name)
    {
        auto entry = std::make_unique<Entry>();
        entry->name = name;
        Entry& added = *m_entries.emplace_back(std::move(entry));
        try
        {
            AddToIndex(added);
        }
        catch (...)
        {
            m_entries.pop_back();
            throw;
        }
        return added.value;
    }

    T& FindOrAdd(std::string_view name)
    {
        T const* const found = Find(name);
        return found == nullptr ? Add(name) : const_cast<T&>(*found);
    }

private:
    static constexpr std::size_t c_mostWalked = 8;

    struct Entry
    {
        std::string name;
        T value{};
    };

    void AddToIndex(Entry& added)
    {
        if (m_entries.size() == c_mostWalked + 1)
            for (auto const& known : m_entries)
                m_index.emplace(known->name, known.get());
        else if (m_entries.size() > c_mostWalked)
            m_index.emplace(added.name, &added);
    }

    std::vector<std::unique_ptr<Entry>> m_entries;
    std::unordered_map<std::string_view, Entry*> m_index;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
