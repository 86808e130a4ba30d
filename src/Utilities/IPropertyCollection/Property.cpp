#include <Utilities/IPropertyCollection/Property.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

Property::Property(unsigned int id) noexcept : m_id(id)
{
}
Property::Property(Property const&) = default;
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
