// How collections leave.

#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>
#include <Utilities/IPropertyCollection/PropertyCollectionObtainer.h>

#include <utility>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

void PropertyCollectionFactory::CleanUp(std::function<bool(PropertyCollection const&)> keep, bool keepTemplates,
                                        bool includeNonDeletable)
{
    CleanUpWhere(keep, keepTemplates, includeNonDeletable);
}

void PropertyCollectionFactory::CleanUpWhere(std::function<bool(PropertyCollection const&)> const& keep,
                                             bool keepTemplates, bool includeNonDeletable)
{
    struct Refused
    {
        PropertyCollection* collection;
        std::size_t index; // it may move to the front by now, never to the back
    };
    Internal::RunningCall const call(*m_state);
    std::vector<Refused> refused;
    std::vector<PropertyCollection*> const all = m_state->collections.GetAll();
    for (std::size_t index = 1; index < all.size(); ++index)
    {
        PropertyCollection& collection = *all[index];
        if (collection.m_registration != PropertyCollection::Registration::Held || collection.m_pins != 0 ||
            (!collection.m_isDeletable && !includeNonDeletable) ||
            (!collection.m_templateName.empty() && keepTemplates))
            continue;
        Internal::Pin const pin(collection);
        if (!keep(collection))
            refused.push_back({ &collection, index });
    }
    for (; !refused.empty(); refused.pop_back())
        if (refused.back().collection->m_registration == PropertyCollection::Registration::Held)
            Remove(*refused.back().collection, refused.back().index);
}

void PropertyCollectionFactory::Remove(PropertyCollection& collection, std::size_t index)
{
    {
        Internal::Pin const pin(collection);
        collection.m_registration = PropertyCollection::Registration::Leaving;
        try
        {
            Notify(&PropertyCollectionFactoryObserver::BeforeDelete, collection);
            m_state->removed.emplace_back();
        }
        catch (...)
        {
            collection.m_registration = PropertyCollection::Registration::Held;
            throw;
        }
        m_state->removed.back() = m_state->collections.Take(collection, index);
    }
    DetachObtainers(collection);
}

void PropertyCollectionFactory::DetachObtainers(PropertyCollection const& collection)
{
    if (collection.m_obtainers == 0)
        return;
    // First all of them, so that none is left with what is gone; then they tell their handlers.
    auto const& obtainers = m_state->obtainers;
    obtainers.ForEach([&collection](PropertyCollectionObtainer& obtainer) { obtainer.FallBackFrom(collection); });
    try
    {
        obtainers.ForEach([](PropertyCollectionObtainer& obtainer) { obtainer.TellFallBack(); });
    }
    catch (...)
    {
        obtainers.ForEach([](PropertyCollectionObtainer& obtainer) { obtainer.DropFallBack(); });
        throw;
    }
}

void PropertyCollectionFactory::Reset(bool keepTemplates, bool includeNonDeletable)
{
    Internal::RunningCall const call(*m_state);
    CleanUpWhere([](PropertyCollection const&) { return false; }, keepTemplates, includeNonDeletable);
    m_state->nextId = m_state->collections.GetGreatestId() + 1;
    if (keepTemplates)
        return;
    PropertyCollection& standard = m_state->collections[0];
    standard.m_templateName = m_state->name;
    std::size_t const size = standard.m_properties.size();
    for (std::size_t index = 0; index < size; ++index)
        standard.m_properties[index]->SetToDefault();
    standard.m_isOverriden = false;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
