#include <Utilities/IPropertyCollection/PropertyCollection.h>

#include <Utilities/IPropertyCollection/Internal/Assignment.h>
#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

unsigned int const PropertyCollection::c_no_id; // defined here, or no host could take its address from a DLL

PropertyCollection::PropertyCollection(Internal::FactoryState& factory, std::wstring templateName) noexcept
    : m_factory(factory),
      m_templateName(std::move(templateName))
{
}

PropertyCollection::PropertyCollection(PropertyCollection const& other)
    : PropertyCollection(other.m_factory, std::wstring())
{
    Assign(other, other.m_id);
    m_isOverriden = false;
    m_isDeletable = true;
}

PropertyCollection::~PropertyCollection()
{
    // Properties that die may call back, and those that somebody keeps must not name what is gone.
    auto const properties = std::exchange(m_properties, {});
    for (auto const& property : properties)
        if (property->m_collection == this)
            property->m_collection = nullptr;
}

unsigned int PropertyCollection::GetId() const noexcept
{
    return m_id;
}

std::wstring const& PropertyCollection::GetTemplateName() const noexcept
{
    return m_templateName;
}

void PropertyCollection::SetTemplateName(std::wstring const& templateName)
{
    m_templateName = templateName;
}

bool PropertyCollection::IsOverriden() const noexcept
{
    return m_isOverriden;
}

void PropertyCollection::SetIsOverriden(bool isOverriden) noexcept
{
    m_isOverriden = isOverriden;
}

bool PropertyCollection::IsDeletable() const noexcept
{
    return m_isDeletable;
}

void PropertyCollection::SetDeletable(bool isDeletable) noexcept
{
    m_isDeletable = isDeletable;
}

bool PropertyCollection::IsStdPropertyCollection() const noexcept
{
    return this == &m_factory.collections[0];
}

PropertyCollectionFactory& PropertyCollection::GetPropertyCollectionFactory() const noexcept
{
    return m_factory.factory;
}

bool PropertyCollection::HasProperty(unsigned int id) const noexcept
{
    return FindProperty(id) != nullptr;
}

Property& PropertyCollection::GetProperty(unsigned int id) const
{
    Property* const property = FindProperty(id);
    if (property == nullptr)
        throw IllegalPropertyCollectionIdException(id);
    return *property;
}

std::wstring PropertyCollection::GetUserText(unsigned int id) const
{
    Internal::RunningCall const call(m_factory);
    return GetProperty(id).GetUserText();
}

void PropertyCollection::ForEachProperty(std::function<void(Property&)> action)
{
    for (auto const& property : std::vector(m_properties))
        action(*property);
}

void PropertyCollection::ForEachProperty(std::function<void(Property const&)> action) const
{
    for (auto const& property : std::vector(m_properties))
        action(*property);
}

bool PropertyCollection::ArePropertiesEqual(PropertyCollection const& other) const
{
    Internal::RunningCall const call(m_factory);
    Internal::RunningCall const callOfOther(other.m_factory);
    Internal::PropertyFinder finder(*this);
    return AreEqual(finder, other);
}

bool PropertyCollection::operator==(PropertyCollection const& other) const
{
    if (m_id != other.m_id && m_id != c_no_id && other.m_id != c_no_id)
        return false;
    return m_templateName == other.m_templateName && ArePropertiesEqual(other);
}

PropertyCollection& PropertyCollection::operator=(PropertyCollection const& other)
{
    Assign(other, other.m_id);
    return *this;
}

void PropertyCollection::Assign(PropertyCollection const& other, unsigned int id)
{
    Internal::RunningCall const call(m_factory);
    Internal::RunningCall const callOfOther(other.m_factory);
    // Name, flags and id first: the properties may ask for them.
    std::wstring templateName = other.m_templateName;
    m_templateName.swap(templateName);
    bool const wasOverriden = std::exchange(m_isOverriden, other.m_isOverriden);
    bool const wasDeletable = std::exchange(m_isDeletable, m_isDeletable && other.m_isDeletable);
    unsigned int const oldId = std::exchange(m_id, id);
    try
    {
        Internal::Assignment(*this, other).Run();
    }
    catch (...)
    {
        m_templateName.swap(templateName);
        m_isOverriden = wasOverriden;
        m_isDeletable = wasDeletable;
        m_id = oldId;
        throw;
    }
}

Property* PropertyCollection::FindProperty(unsigned int id) const noexcept
{
    for (auto const& property : m_properties)
        if (property->GetId() == id)
            return property.get();
    return nullptr;
}

bool PropertyCollection::AreEqual(Internal::PropertyFinder& finder, PropertyCollection const& other)
{
    std::size_t const size = other.m_properties.size();
    for (std::size_t index = 0; index < size; ++index)
    {
        Property const& property = *other.m_properties[index];
        Property const* const counterpart = finder.Find(property.GetId(), index);
        if (counterpart == nullptr || !counterpart->OnIsEqual(property))
            return false;
    }
    return true;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
