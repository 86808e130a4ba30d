#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>

#include <cstddef>
#include <unordered_map>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// Finds the properties of one collection by id, one after the other. Collections of one factory mostly have them in
/// one order, so the same index is tried first; where it fails, an index by id is made once.
class PropertyFinder
{
public:
    explicit PropertyFinder(PropertyCollection const& collection) noexcept : m_collection(collection) {}
    PropertyFinder(PropertyFinder const&) = delete;
    PropertyFinder& operator=(PropertyFinder const&) = delete;

    /// Null when there is none.
    Property* Find(unsigned int id, std::size_t likelyIndex)
    {
        auto const& properties = m_collection.m_properties;
        if (likelyIndex < properties.size() && properties[likelyIndex]->m_id == id)
            return properties[likelyIndex].get();
        return FindElsewhere(id);
    }

private:
    Property* FindElsewhere(unsigned int id);

    PropertyCollection const& m_collection;
    std::unordered_map<unsigned int, Property*> m_byId; // the first of each id
    std::size_t m_indexed = 0;                          // properties that are in it
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
