#include <Utilities/IPropertyCollection/Property.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/PropertyCollection.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

Property::Property(unsigned int id) noexcept : m_id(id)
{
}
Property::Property(Property const& other)
    : m_id(other.m_id),
      m_fingerprint(other.m_fingerprint),
      m_collection(other.m_collection)
{
}
Property::~Property() = default;

Property& Property::operator=(Property const& other)
{
    if (m_collection != nullptr && m_id != other.m_id)
        throw ArgumentException();
    OnClone(other);
    return *this;
}

bool Property::operator==(Property const& other) const
{
    return OnIsEqual(other);
}

bool Property::operator!=(Property const& other) const
{
    return !OnIsEqual(other);
}

unsigned int Property::GetId() const noexcept
{
    return m_id;
}

PropertyCollection& Property::GetPropertyCollection() const
{
    if (m_collection == nullptr)
        throw InvalidStateException();
    return *m_collection;
}

void Property::SetFingerprint(unsigned int fingerprint) noexcept
{
    if (fingerprint == m_fingerprint)
        return;
    if (m_isHeld != 0)
        m_collection->CountOut(*this);
    m_fingerprint = fingerprint & 0x7FFFFFFF;
    if (m_isHeld != 0)
        m_collection->CountIn(*this);
}

PropertyCollection* Property::FindPropertyCollection() const noexcept
{
    return m_collection;
}

std::wstring const& Property::GetPropertyName() const
{
    return GetPropertyInfo().GetName();
}

std::wstring const& Property::GetPropertyDescription() const
{
    return GetPropertyInfo().GetDescription();
}

PropertyInfo::ValueType Property::GetPropertyValueType() const
{
    return GetPropertyInfo().GetValueType();
}

void Property::OnClone(Property const& other)
{
    m_id = other.m_id;
}

bool Property::OnIsEqual(Property const& other) const
{
    return m_id == other.m_id;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
