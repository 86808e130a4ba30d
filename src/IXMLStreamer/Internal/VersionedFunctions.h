#pragma once

#include <IXMLStreamer/Internal/SharedObject.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Functions by the version from which they apply. The one of the greatest version lies apart, since it is nearly
/// always the one that is wanted and there are seldom others.
template <class F>
class VersionedFunctions
{
public:
    using Function = SharedObject<F>;

    VersionedFunctions() = default;
    VersionedFunctions(VersionedFunctions const& other)
    {
        if (other.m_latest.function)
            m_latest = Copy(other.m_latest);
        m_older.reserve(other.m_older.size());
        for (Entry const& entry : other.m_older)
            m_older.push_back(Copy(entry));
    }
    VersionedFunctions& operator=(VersionedFunctions const& other)
    {
        VersionedFunctions copy(other);
        std::swap(m_latest, copy.m_latest);
        m_older.swap(copy.m_older);
        return *this;
    }
    ~VersionedFunctions() = default;

    /// The function of the greatest version up to `version`, or none.
    Function Find(unsigned int version) const
    {
        if (m_latest.version <= version)
            return m_latest.function;
        auto const next = FindNext(m_older.begin(), m_older.end(), version);
        return next == m_older.begin() ? Function() : (next - 1)->function;
    }

    /// Stores `function` for `version`, in `pool` unless that is null.
    void Set(unsigned int version, F&& function, BlockPool* pool)
    {
        Function stored = Function::Make(pool, std::move(function));
        if (!m_latest.function || m_latest.version < version)
            SetLatest(version, stored);
        else if (m_latest.version == version)
            m_latest.function.Swap(stored);
        else
            SetOlder(version, stored);
        // What was stored for the version before ends last, whatever its end brings about.
    }

private:
    struct Entry
    {
        unsigned int version = 0;
        Function function;
    };

    static Entry Copy(Entry const& entry) { return { entry.version, Function::Make(nullptr, *entry.function) }; }

    template <class Iterator>
    static Iterator FindNext(Iterator begin, Iterator end, unsigned int version)
    {
        return std::upper_bound(begin, end, version,
                                [](unsigned int wanted, Entry const& entry) { return wanted < entry.version; });
    }

    void SetLatest(unsigned int version, Function& function)
    {
        if (m_latest.function)
            m_older.push_back(m_latest);
        m_latest.version = version;
        m_latest.function.Swap(function);
    }

    void SetOlder(unsigned int version, Function& function)
    {
        auto const next = FindNext(m_older.begin(), m_older.end(), version);
        if (next != m_older.begin() && (next - 1)->version == version)
            (next - 1)->function.Swap(function);
        else
            m_older.insert(next, Entry{ version, std::move(function) });
    }

    Entry m_latest;             // version 0 while there is none
    std::vector<Entry> m_older; // ascending by version
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
