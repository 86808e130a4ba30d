// How edited collections get in and templates get their names.

#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>

#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyCollection const& PropertyCollectionFactory::ObtainPropertyCollection(PropertyCollection const& source,
                                                                              unsigned int id)
{
    Internal::RunningCall const call(*m_state);
    Internal::RunningCall const callOfSource(source.m_factory);
    auto& collections = m_state->collections;
    bool const isNamed = !source.m_templateName.empty();

    PropertyCollection* target = id == PropertyCollection::c_no_id ? nullptr : collections.FindById(id);
    bool const isSameId = target != nullptr;
    if (!isSameId)
        target = isNamed ? collections.FindByName(source.m_templateName) : FindEqual(source);
    if (target == nullptr)
        return Register(source, id);
    if (target->m_registration == PropertyCollection::Registration::Leaving)
        throw InvalidStateException();
    if (isSameId)
        return Update(*target, source);
    return isNamed ? UpdateTemplate(*target, source) : *target;
}

PropertyCollection* PropertyCollectionFactory::FindEqual(PropertyCollection const& source) const
{
    Internal::PropertyFinder finder(source);
    for (PropertyCollection* const collection : m_state->collections.GetAll())
    {
        if (collection->m_registration == PropertyCollection::Registration::None || source.IsKnownToDiffer(*collection))
            continue;
        Internal::Pin const pin(*collection);
        if (PropertyCollection::AreEqual(finder, *collection))
            return collection;
    }
    return nullptr;
}

PropertyCollection const& PropertyCollectionFactory::Update(PropertyCollection& target,
                                                            PropertyCollection const& source)
{
    Internal::Pin const pin(target);
    target.Assign(source, target.m_id);
    Notify(&PropertyCollectionFactoryObserver::AfterUpdate, target);
    return target;
}

PropertyCollection const& PropertyCollectionFactory::UpdateTemplate(PropertyCollection& target,
                                                                    PropertyCollection const& source)
{
    if (target.m_isOverriden)
        return target;
    Internal::Pin const pin(target);
    Internal::PropertyFinder finder(target);
    if (!PropertyCollection::AreEqual(finder, source))
        return Update(target, source);
    target.Assign(source, target.m_id); // the flags may differ
    return target;
}

PropertyCollection const& PropertyCollectionFactory::Register(PropertyCollection const& source, unsigned int id)
{
    std::unique_ptr<PropertyCollection> created = m_state->MakeCollection({});
    created->Assign(source, PropertyCollection::c_no_id);
    if (created->m_templateName.empty())
    {
        created->m_isOverriden = false;
        created->m_isDeletable = true;
    }
    created->m_id = PickNextPropertyCollectionId(id);
    PropertyCollection const& registered = m_state->collections.Append(std::move(created));
    Internal::Pin const pin(registered);
    Notify(&PropertyCollectionFactoryObserver::AfterCreate, registered);
    return registered;
}

void PropertyCollectionFactory::AssignTemplatePropertyCollection(PropertyCollection const& source)
{
    if (source.m_templateName.empty())
        throw EmptyTemplateNameException();
    ObtainPropertyCollection(source, PropertyCollection::c_no_id);
}

void PropertyCollectionFactory::RenameTemplatePropertyCollection(std::wstring const& oldName,
                                                                 std::wstring const& newName)
{
    if (oldName.empty() || newName.empty())
        throw EmptyTemplateNameException();
    if (ExistsTemplate(newName))
        throw IllegalTemplateNameException(newName);
    ChangeTemplateName(FindTemplate(oldName), newName);
}

void PropertyCollectionFactory::ConvertIntoNonTemplatePropertyCollection(std::wstring const& templateName)
{
    PropertyCollection& found = FindTemplate(templateName);
    if (found.IsStdPropertyCollection())
        throw IllegalTemplateNameException(templateName);
    ChangeTemplateName(found, {});
}

void PropertyCollectionFactory::ChangeTemplateName(PropertyCollection& collection, std::wstring newName)
{
    Internal::RunningCall const call(*m_state);
    Internal::Pin const pin(collection);
    Notify(&PropertyCollectionFactoryObserver::BeforeRename, collection);
    collection.m_templateName = std::move(newName);
    Notify(&PropertyCollectionFactoryObserver::AfterRename, collection);
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
