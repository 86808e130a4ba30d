#include <Utilities/IPropertyCollection/PropertyInfo.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyInfo::PropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                           ValueType valueType)
    : m_id(id),
      m_name(name),
      m_description(description),
      m_valueType(valueType)
{
}
PropertyInfo::PropertyInfo(PropertyInfo const&) = default;
PropertyInfo::~PropertyInfo() = default;

PropertyInfo& PropertyInfo::operator=(PropertyInfo const& other)
{
    OnClone(other);
    return *this;
}

bool PropertyInfo::operator==(PropertyInfo const& other) const
{
    return OnIsEqual(other);
}

unsigned int PropertyInfo::GetId() const noexcept
{
    return m_id;
}

std::wstring const& PropertyInfo::GetName() const noexcept
{
    return m_name;
}

std::wstring const& PropertyInfo::GetDescription() const noexcept
{
    return m_description;
}

PropertyInfo::ValueType PropertyInfo::GetValueType() const noexcept
{
    return m_valueType;
}

void PropertyInfo::OnClone(PropertyInfo const& other)
{
    m_id = other.m_id;
    m_valueType = other.m_valueType;
}

bool PropertyInfo::OnIsEqual(PropertyInfo const& other) const
{
    return m_valueType == other.m_valueType && m_id == other.m_id;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
