#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

Property* PropertyFinder::FindElsewhere(unsigned int id)
{
    auto const& properties = m_collection.m_properties;
    for (; m_indexed < properties.size(); ++m_indexed) // those that were there, or that a callback has added since
        m_byId.emplace(properties[m_indexed]->m_id, properties[m_indexed].get());
    auto const found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : found->second;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
