#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>
#include <Utilities/IPropertyCollection/PropertyCollectionObtainer.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

unsigned int const PropertyCollectionFactory::c_standard_property_collection_id; // as PropertyCollection::c_no_id

PropertyCollectionFactory::PropertyCollectionFactory(std::wstring const& name)
    : m_state(std::make_unique<Internal::FactoryState>(*this, name))
{
    std::unique_ptr<PropertyCollection> standard = m_state->MakeCollection(name);
    standard->m_id = PickNextPropertyCollectionId(PropertyCollection::c_no_id);
    m_state->collections.Append(std::move(standard));
}

PropertyCollectionFactory::~PropertyCollectionFactory()
{
    m_state->obtainers.ForEach([](PropertyCollectionObtainer& obtainer) { obtainer.ForgetFactory(); });
}

PropertyCollection const& PropertyCollectionFactory::GetStdPropertyCollection() const noexcept
{
    return m_state->collections[0];
}

unsigned long long PropertyCollectionFactory::GetPropertyCollectionCount() const noexcept
{
    return m_state->collections.GetSize();
}

PropertyCollection const& PropertyCollectionFactory::GetPropertyCollection(unsigned int id) const
{
    PropertyCollection const* const found = m_state->collections.FindById(id);
    if (found == nullptr)
        throw IllegalPropertyCollectionIdException(id);
    return *found;
}

PropertyCollection& PropertyCollectionFactory::GetChangeablePropertyCollection(unsigned int id)
{
    return const_cast<PropertyCollection&>(GetPropertyCollection(id));
}

PropertyCollection& PropertyCollectionFactory::GetChangeablePropertyCollectionByIndex(unsigned long long index)
{
    if (index >= GetPropertyCollectionCount())
        throw std::out_of_range("invalid vector subscript");
    return m_state->collections[static_cast<std::size_t>(index)];
}

PropertyCollection const& PropertyCollectionFactory::GetPropertyCollection(std::wstring const& templateName) const
{
    return FindTemplate(templateName);
}

bool PropertyCollectionFactory::ExistsTemplate(std::wstring const& templateName) const noexcept
{
    return m_state->collections.FindByName(templateName) != nullptr;
}

PropertyCollection PropertyCollectionFactory::GetChangeableTemplatePropertyCollection(
    std::wstring const& templateName) const
{
    return FindTemplate(templateName);
}

std::unique_ptr<PropertyCollection> PropertyCollectionFactory::Create() const
{
    std::unique_ptr<PropertyCollection> created = m_state->MakeCollection({});
    created->Assign(GetStdPropertyCollection(), PropertyCollection::c_no_id);
    created->m_templateName.clear();
    created->m_isOverriden = false;
    created->m_isDeletable = true;
    return created;
}

void PropertyCollectionFactory::ForEachPropertyCollection(std::function<void(PropertyCollection const&)> action,
                                                          std::function<bool(PropertyCollection const&)> skip)
{
    Internal::RunningCall const call(*m_state);
    for (PropertyCollection const* const collection : m_state->collections.GetAll())
    {
        if (collection->m_registration == PropertyCollection::Registration::None)
            continue;
        Internal::Pin const pin(*collection);
        if (!skip || !skip(*collection))
            action(*collection);
    }
}

void PropertyCollectionFactory::RegisterObserver(PropertyCollectionFactoryObserver& observer)
{
    if (!m_state->observers.Contains(observer))
        m_state->observers.Add(observer);
}

void PropertyCollectionFactory::UnregisterObserver(PropertyCollectionFactoryObserver& observer)
{
    m_state->observers.Remove(observer);
}

void PropertyCollectionFactory::ForEachObserver(std::function<void(PropertyCollectionFactoryObserver&)> action)
{
    Internal::RunningCall const call(*m_state);
    m_state->observers.ForEach(action);
}

void PropertyCollectionFactory::NotifyFactoryChanged()
{
    ForEachObserver([this](PropertyCollectionFactoryObserver& observer) { observer.AfterFactoryChanged(*this); });
}

void PropertyCollectionFactory::AddPropertyInfo(PropertyInfo* info)
{
    std::unique_ptr<PropertyInfo> owned(info);
    m_state->infos.reserve(m_state->infos.size() + 1);
    m_state->infosById.emplace(info->GetId(), info);
    m_state->infos.push_back(std::move(owned));
}

PropertyInfo const* PropertyCollectionFactory::GetPropertyInfo(unsigned int id) const
{
    auto const found = m_state->infosById.find(id);
    return found == m_state->infosById.end() ? nullptr : found->second;
}

void PropertyCollectionFactory::ForEachPropertyInfo(std::function<void(PropertyInfo const&)> action) const
{
    Internal::RunningCall const call(*m_state);
    std::size_t const size = m_state->infos.size();
    for (std::size_t index = 0; index < size; ++index)
        action(*m_state->infos[index]);
}

unsigned int PropertyCollectionFactory::PickNextPropertyCollectionId(unsigned int requestedId)
{
    unsigned int& next = m_state->nextId;
    if (requestedId == PropertyCollection::c_no_id)
        return next == PropertyCollection::c_no_id ? m_state->collections.GetSmallestFreeId() : next++;
    next = std::max(next, requestedId + 1);
    return requestedId;
}

PropertyCollection& PropertyCollectionFactory::FindTemplate(std::wstring const& templateName) const
{
    if (templateName.empty())
        throw EmptyTemplateNameException();
    PropertyCollection* const found = m_state->collections.FindByName(templateName);
    if (found == nullptr)
        throw UnknownTemplateException(templateName);
    return *found;
}

void PropertyCollectionFactory::Notify(Notification notification, PropertyCollection const& collection)
{
    m_state->observers.ForEach([=, &collection](PropertyCollectionFactoryObserver& observer)
                               { (observer.*notification)(collection); });
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
