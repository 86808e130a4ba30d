#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <VekApi.h>

#include <string>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// A value that differs between two collections, as people read it.
struct ChangedValue
{
    PropertyInfo const* kind; ///< valid as long as its factory
    std::wstring oldText;     ///< empty when the old collection has no such property
    std::wstring newText;     ///< empty when the new collection has none
};

/// What changes when `newCollection` takes the place of `oldCollection`, for menus and logs: first the kinds of the old
/// one in its order, then those that only the new one has.
VEK_API std::vector<ChangedValue> GetChangedValues(PropertyCollection const& oldCollection,
                                                   PropertyCollection const& newCollection);

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
