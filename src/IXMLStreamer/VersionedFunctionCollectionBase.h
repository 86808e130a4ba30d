#pragma once

#include <VekApi.h>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Functions by the format version from which they apply: one that is registered for version N serves every version up
/// to the next registered one.
///
/// A function may replace functions of this collection while it is called, itself included: it stays alive until its
/// call ends, and the new one counts from the next call on.
template <class F>
class VersionedFunctionCollectionBase
{
public:
    VersionedFunctionCollectionBase();
    VersionedFunctionCollectionBase(VersionedFunctionCollectionBase const& other);
    VersionedFunctionCollectionBase& operator=(VersionedFunctionCollectionBase const& other);
    virtual ~VersionedFunctionCollectionBase();

    /// Stores `function` for `version`, in place of one stored for that version before.
    void SetFunction(unsigned int version, F function);

    /// The function of the greatest registered version up to `version`, or null. Valid until it is replaced.
    F const* GetFunction(unsigned int version) const;

protected:
    /// Counts a call while it runs, so that the function is not destroyed inside itself.
    class ActiveCall
    {
    public:
        explicit ActiveCall(VersionedFunctionCollectionBase const& owner) : m_owner(owner) { ++m_owner.m_activeCalls; }
        ActiveCall(ActiveCall const&) = delete;
        ActiveCall& operator=(ActiveCall const&) = delete;
        ~ActiveCall() { --m_owner.m_activeCalls; }

    private:
        VersionedFunctionCollectionBase const& m_owner;
    };

private:
    struct Entry
    {
        unsigned int version;
        std::unique_ptr<F> function; // its address stays while entries come and go
    };

    std::size_t CountUpTo(unsigned int version) const;

    std::vector<Entry> m_entries; // ascending by version
    std::vector<std::unique_ptr<F>> m_replaced;
    mutable unsigned int m_activeCalls = 0;
};

template <class F>
VersionedFunctionCollectionBase<F>::VersionedFunctionCollectionBase() = default;

template <class F>
VersionedFunctionCollectionBase<F>::VersionedFunctionCollectionBase(VersionedFunctionCollectionBase const& other)
{
    m_entries.reserve(other.m_entries.size());
    for (Entry const& entry : other.m_entries)
        m_entries.push_back({ entry.version, std::make_unique<F>(*entry.function) });
}

template <class F>
VersionedFunctionCollectionBase<F>& VersionedFunctionCollectionBase<F>::operator=(
    VersionedFunctionCollectionBase const& other)
{
    VersionedFunctionCollectionBase copy(other);
    for (Entry& entry : m_entries)
        m_replaced.push_back(std::move(entry.function));
    m_entries.swap(copy.m_entries);
    if (m_activeCalls == 0)
        m_replaced.clear();
    return *this;
}

template <class F>
VersionedFunctionCollectionBase<F>::~VersionedFunctionCollectionBase() = default;

template <class F>
void VersionedFunctionCollectionBase<F>::SetFunction(unsigned int version, F function)
{
    auto stored = std::make_unique<F>(std::move(function));
    std::size_t const count = CountUpTo(version);
    if (count == 0 || m_entries[count - 1].version != version)
    {
        m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(count), Entry{ version, std::move(stored) });
        return;
    }
    m_replaced.push_back(nullptr);
    m_replaced.back() = std::exchange(m_entries[count - 1].function, std::move(stored));
    if (m_activeCalls == 0)
        m_replaced.clear();
}

template <class F>
F const* VersionedFunctionCollectionBase<F>::GetFunction(unsigned int version) const
{
    std::size_t const count = CountUpTo(version);
    return count == 0 ? nullptr : m_entries[count - 1].function.get();
}

// The number of entries for versions up to `version`. There are few, so a walk beats a binary search.
template <class F>
std::size_t VersionedFunctionCollectionBase<F>::CountUpTo(unsigned int version) const
{
    std::size_t count = m_entries.size();
    while (count != 0 && m_entries[count - 1].version > version)
        --count;
    return count;
}

} // namespace Vek::Framework::IXMLStreamer::Native
