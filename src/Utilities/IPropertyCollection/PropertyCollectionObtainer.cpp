#include <Utilities/IPropertyCollection/PropertyCollectionObtainer.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyCollectionObtainer::PropertyCollectionObtainer(PropertyCollectionFactory& factory)
    : m_factory(&factory),
      m_current(&factory.GetStdPropertyCollection())
{
    factory.m_state->obtainers.Add(*this);
    ++m_current->m_obtainers;
}

PropertyCollectionObtainer& PropertyCollectionObtainer::operator=(PropertyCollectionObtainer const& other)
{
    if (&GetFactory() != other.m_factory)
        throw ArgumentException();
    Change(*other.m_current);
    return *this;
}

PropertyCollectionObtainer::~PropertyCollectionObtainer()
{
    if (m_factory == nullptr)
        return;
    --m_current->m_obtainers;
    m_factory->m_state->obtainers.Remove(*this);
}

PropertyCollection const& PropertyCollectionObtainer::GetPropertyCollection() const
{
    GetFactory();
    return *m_current;
}

PropertyCollection PropertyCollectionObtainer::GetChangeablePropertyCollection() const
{
    PropertyCollection copy(GetPropertyCollection());
    copy.m_id = PropertyCollection::c_no_id;
    copy.m_templateName.clear();
    return copy;
}

void PropertyCollectionObtainer::AssignPropertyCollection(PropertyCollection const& edited)
{
    PropertyCollectionFactory& factory = GetFactory();
    Internal::RunningCall const call(*factory.m_state);
    Change(factory.ObtainPropertyCollection(edited, PropertyCollection::c_no_id));
}

void PropertyCollectionObtainer::AssignPropertyCollection(unsigned int id)
{
    AssignPropertyCollection(GetFactory().GetPropertyCollection(id));
}

Event<PropertyCollection const&> const& PropertyCollectionObtainer::GetChangedEvent() const noexcept
{
    return m_changed;
}

PropertyCollectionFactory& PropertyCollectionObtainer::GetFactory() const
{
    if (m_factory == nullptr)
        throw InvalidStateException();
    return *m_factory;
}

void PropertyCollectionObtainer::Use(PropertyCollection const& collection) noexcept
{
    --m_current->m_obtainers;
    m_current = &collection;
    ++m_current->m_obtainers;
}

void PropertyCollectionObtainer::Change(PropertyCollection const& collection)
{
    if (m_current == &collection)
        return;
    Internal::RunningCall const call(*m_factory->m_state);
    Internal::Pin const pin(collection);
    Use(collection);
    m_hasFallenBack = false;
    m_changed.Raise(collection);
}

void PropertyCollectionObtainer::FallBackFrom(PropertyCollection const& removed) noexcept
{
    if (m_current != &removed)
        return;
    Use(m_factory->GetStdPropertyCollection());
    m_hasFallenBack = true;
}

void PropertyCollectionObtainer::TellFallBack()
{
    if (std::exchange(m_hasFallenBack, false))
        m_changed.Raise(*m_current);
}

void PropertyCollectionObtainer::DropFallBack() noexcept
{
    m_hasFallenBack = false;
}

void PropertyCollectionObtainer::ForgetFactory() noexcept
{
    m_factory = nullptr;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
