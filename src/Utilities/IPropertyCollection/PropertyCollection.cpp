#include <Utilities/IPropertyCollection/PropertyCollection.h>

#include <Utilities/Internal/MixHash.h>
#include <Utilities/IPropertyCollection/Internal/Assignment.h>
#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>
#include <Utilities/IPropertyCollection/Internal/RunningCall.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

namespace
{

unsigned long long MixFingerprint(unsigned int id, unsigned int fingerprint) noexcept
{
    return MixHash(static_cast<unsigned long long>(id) << 32U | fingerprint);
}

} // namespace

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
        {
            property->m_collection = nullptr;
            property->m_isHeld = 0;
        }
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
    bool const isRenamed = m_templateName != other.m_templateName;
    std::wstring templateName = isRenamed ? other.m_templateName : std::wstring();
    if (isRenamed)
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
        if (isRenamed)
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
        if (property->m_id == id)
            return property.get();
    return nullptr;
}

void PropertyCollection::Hold(std::shared_ptr<Property> property) noexcept
{
    property->m_isHeld = 1;
    CountIn(*property);
    m_properties.push_back(std::move(property));
}

void PropertyCollection::CountIn(Property const& property) noexcept
{
    if (property.m_fingerprint == 0)
        ++m_unknownFingerprints;
    m_fingerprints += MixFingerprint(property.m_id, property.m_fingerprint);
}

void PropertyCollection::CountOut(Property const& property) noexcept
{
    if (property.m_fingerprint == 0)
        --m_unknownFingerprints;
    m_fingerprints -= MixFingerprint(property.m_id, property.m_fingerprint);
}

bool PropertyCollection::IsKnownToDiffer(PropertyCollection const& other) const noexcept
{
    // With as many properties each, all ids must meet for them to be equal, and so the sums.
    return m_properties.size() == other.m_properties.size() && m_fingerprints != other.m_fingerprints &&
           m_unknownFingerprints == 0 && other.m_unknownFingerprints == 0;
}

bool PropertyCollection::AreEqual(Internal::PropertyFinder& finder, PropertyCollection const& other)
{
    std::size_t const size = other.m_properties.size();
    for (std::size_t index = 0; index < size; ++index)
    {
        Property const& property = *other.m_properties[index];
        Property const* const counterpart = finder.Find(property.m_id, index);
        if (counterpart == nullptr || !counterpart->OnIsEqual(property))
            return false;
    }
    return true;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
