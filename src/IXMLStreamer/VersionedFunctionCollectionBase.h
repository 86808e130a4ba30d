#pragma once

#include <IXMLStreamer/Internal/SharedFunction.h>
#include <VekApi.h>

#include <algorithm>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Functions by the format version from which they apply: one that is registered for version N serves every version up
/// to the next registered one.
///
/// Shape:   at most one function for each version; copies hold copies of the functions.
/// Reentry: a function may replace functions of this collection while it is called, itself included, or end the
///          collection: it stays alive until its call ends, and the new one counts from the next call on.
template <class F>
class VEK_TEMPLATE_API VersionedFunctionCollectionBase
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
    /// The same, alive for as long as it is held.
    Internal::SharedFunction<F> FindFunction(unsigned int version) const
    {
        auto const next = FindNext(m_entries.begin(), m_entries.end(), version);
        return next == m_entries.begin() ? Internal::SharedFunction<F>() : (next - 1)->function;
    }

private:
    struct Entry
    {
        unsigned int version;
        Internal::SharedFunction<F> function;
    };

    template <class Iterator>
    static Iterator FindNext(Iterator begin, Iterator end, unsigned int version)
    {
        return std::upper_bound(begin, end, version,
                                [](unsigned int wanted, Entry const& entry) { return wanted < entry.version; });
    }

    std::vector<Entry> m_entries; // ascending by version
};

} // namespace Vek::Framework::IXMLStreamer::Native
