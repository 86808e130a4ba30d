#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/MadeProperties.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <deque>
#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyCollectionFactoryAccess::PropertyCollectionFactoryAccess(PropertyCollectionFactory& factory) noexcept
    : m_factory(factory)
{
}

PropertyInfo const& PropertyCollectionFactoryAccess::AddPropertyInfo(std::unique_ptr<PropertyInfo> info)
{
    if (info == nullptr || FindPropertyInfo(info->GetId()) != nullptr)
        throw ArgumentException();
    PropertyInfo const& added = *info;
    m_factory.AddPropertyInfo(info.release());
    return added;
}

void PropertyCollectionFactoryAccess::AddStandardProperty(unsigned int id)
{
    Internal::FactoryState& state = *m_factory.m_state;
    Internal::RunningCall const call(state);
    if (FindPropertyInfo(id) == nullptr)
        throw IllegalPropertyCollectionIdException(id);
    if (state.collections[0].FindProperty(id) != nullptr)
        throw ArgumentException();
    std::deque<Internal::MadeProperties> made;
    for (PropertyCollection* const collection : state.collections.GetAll())
        if (collection->FindProperty(id) == nullptr)
            made.emplace_back(*collection).Make(id);
    for (Internal::MadeProperties& property : made)
        property.Reserve();
    for (Internal::MadeProperties& property : made)
        property.Commit();
}

PropertyInfo const* PropertyCollectionFactoryAccess::FindPropertyInfo(unsigned int id) const
{
    return m_factory.GetPropertyInfo(id);
}

void PropertyCollectionFactoryAccess::ForEachPropertyInfo(std::function<void(PropertyInfo const&)> action) const
{
    m_factory.ForEachPropertyInfo(std::move(action));
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
