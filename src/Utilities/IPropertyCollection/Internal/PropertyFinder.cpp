#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>

#include <algorithm>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

Property* PropertyFinder::FindElsewhere(unsigned int id)
{
    auto const isBefore = [](auto const& a, auto const& b) { return a.first < b.first; };
    auto const& properties = m_collection.m_properties;
    if (m_byId.size() != properties.size()) // not made yet, or a callback has added some
    {
        m_byId.clear();
        m_byId.reserve(properties.size());
        for (auto const& property : properties)
            m_byId.emplace_back(property->GetId(), property.get());
        std::stable_sort(m_byId.begin(), m_byId.end(), isBefore);
    }
    auto const found = std::lower_bound(m_byId.begin(), m_byId.end(), std::pair(id, nullptr), isBefore);
    return found == m_byId.end() || found->first != id ? nullptr : found->second;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
