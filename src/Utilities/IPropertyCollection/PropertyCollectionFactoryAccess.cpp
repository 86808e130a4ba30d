#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/MadeProperties.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <algorithm>
#include <deque>
#include <unordered_set>
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

unsigned int PropertyCollectionFactoryAccess::GetNextId() const noexcept
{
    return m_factory.m_state->nextId;
}

std::unique_ptr<PropertyCollection> PropertyCollectionFactoryAccess::CreateEmptyCollection(unsigned int id) const
{
    std::unique_ptr<PropertyCollection> created = m_factory.m_state->MakeCollection({});
    created->m_id = id;
    return created;
}

Property& PropertyCollectionFactoryAccess::AddProperty(PropertyCollection& collection, unsigned int id) const
{
    RequireFree(collection);
    if (collection.HasProperty(id))
        throw ArgumentException();
    Internal::RunningCall const call(*m_factory.m_state);
    Internal::MadeProperties made(collection);
    Property& property = made.Make(id);
    made.Reserve();
    made.Commit();
    return property;
}

void PropertyCollectionFactoryAccess::RestoreCollections(std::vector<std::unique_ptr<PropertyCollection>> collections,
                                                         unsigned int nextId)
{
    RequireRestorable(collections);
    Internal::FactoryState& state = *m_factory.m_state;
    Internal::RunningCall const call(state);
    std::unique_ptr<PropertyCollection> const standard = std::move(collections.front());
    try
    {
        for (std::size_t index = 1; index < collections.size(); ++index)
            state.collections.Append(std::move(collections[index]));
        state.collections[0].Assign(*standard, PropertyCollectionFactory::c_standard_property_collection_id);
    }
    catch (...)
    {
        while (state.collections.GetSize() > 1)
        {
            std::size_t const last = state.collections.GetSize() - 1;
            state.collections.Take(state.collections[last], last);
        }
        throw;
    }
    state.nextId = std::max(nextId, state.collections.GetGreatestId() + 1);
}

void PropertyCollectionFactoryAccess::RequireFree(PropertyCollection const& collection) const
{
    if (&collection.m_factory != m_factory.m_state.get() ||
        collection.m_registration != PropertyCollection::Registration::None)
        throw ArgumentException();
}

void PropertyCollectionFactoryAccess::RequireRestorable(
    std::vector<std::unique_ptr<PropertyCollection>> const& collections) const
{
    if (m_factory.GetPropertyCollectionCount() != 1)
        throw InvalidStateException();
    if (collections.empty())
        throw ArgumentException();
    std::unordered_set<unsigned int> ids{ PropertyCollection::c_no_id };
    for (auto const& collection : collections)
    {
        if (collection == nullptr || !ids.insert(collection->m_id).second)
            throw ArgumentException();
        RequireFree(*collection);
    }
    if (collections.front()->m_id != PropertyCollectionFactory::c_standard_property_collection_id)
        throw ArgumentException();
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
