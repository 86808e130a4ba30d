#pragma once

#include <IXMLStreamer/Internal/VersionedFunctions.h>
#include <VekApi.h>

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
    Internal::SharedObject<F> FindFunction(unsigned int version) const { return m_functions.Find(version); }

private:
    Internal::VersionedFunctions<F> m_functions;
};

} // namespace Vek::Framework::IXMLStreamer::Native
