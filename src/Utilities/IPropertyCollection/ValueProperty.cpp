#include <Utilities/IPropertyCollection/ValueProperty.h>

#include <Utilities/ColorHash.h>
#include <Utilities/DateTimeHash.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/DecimalHash.h>
#include <Utilities/Internal/MixHash.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <algorithm>
#include <functional>
#include <type_traits>
#include <typeinfo>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

namespace
{

template <class V>
bool AreSame(V const& a, V const& b)
{
    if constexpr (std::is_same_v<V, Decimal>)
        return a == b && a.GetFractionalDigits() == b.GetFractionalDigits();
    else
        return a == b;
}

/// What is the same has the same one. 0 for a NaN, which is the same as every number.
template <class V>
unsigned int FingerprintOf(V const& value)
{
    if constexpr (std::is_same_v<V, Decimal>)
        if (IsNaN(value))
            return 0;
    return std::max(1U, static_cast<unsigned int>(MixHash(std::hash<V>()(value)) >> 33U));
}

} // namespace

StoredProperty::~StoredProperty() = default;

template <class V>
ValuePropertyInfo<V>::ValuePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                        ValueType valueType)
    : PropertyInfo(id, name, description, valueType)
{
}

template <class V>
ValuePropertyInfo<V>::~ValuePropertyInfo() = default;

template <class V>
std::shared_ptr<Property> ValuePropertyInfo<V>::CreateProperty() const
{
    return std::make_shared<ValueProperty<V>>(*this);
}

template <class V>
V const& ValuePropertyInfo<V>::GetDefault() const noexcept
{
    return m_default;
}

template <class V>
void ValuePropertyInfo<V>::SetDefault(V const& value)
{
    m_default = Accept(value);
}

template <class V>
ValueProperty<V>::ValueProperty(ValuePropertyInfo<V> const& info)
    : Property(info.GetId()),
      m_info(info),
      m_value(info.GetDefault())
{
    SetFingerprint(FingerprintOf(m_value));
}

template <class V>
ValueProperty<V>::~ValueProperty() = default;

template <class V>
V const& ValueProperty<V>::GetValue() const noexcept
{
    return m_value;
}

template <class V>
void ValueProperty<V>::SetValue(V const& value)
{
    PropertyCollection const* const collection = FindPropertyCollection();
    if (collection != nullptr && collection->IsOverriden())
        throw PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException();
    m_value = m_info.Accept(value);
    SetFingerprint(FingerprintOf(m_value));
}

template <class V>
std::wstring ValueProperty<V>::GetUserText() const
{
    return m_info.GetUserText(m_value);
}

template <class V>
void ValueProperty<V>::SetToDefault()
{
    m_value = m_info.GetDefault();
    SetFingerprint(FingerprintOf(m_value));
}

template <class V>
PropertyInfo const& ValueProperty<V>::GetPropertyInfo() const
{
    return m_info;
}

template <class V>
std::wstring ValueProperty<V>::GetStoredText() const
{
    return m_info.GetStoredText(m_value);
}

template <class V>
void ValueProperty<V>::SetStoredText(std::wstring const& text)
{
    SetValue(m_info.ReadStoredText(text));
}

template <class V>
void ValueProperty<V>::OnClone(Property const& other)
{
    if (typeid(other) != typeid(ValueProperty))
        RefuseType(other);
    auto const& source = static_cast<ValueProperty const&>(other);
    if (&source.m_info == &m_info)
        m_value = source.m_value;
    else
        m_value = m_info.Accept(source.m_value);
    Property::OnClone(other);
    SetFingerprint(&source.m_info == &m_info ? source.m_fingerprint : FingerprintOf(m_value));
}

template <class V>
bool ValueProperty<V>::OnIsEqual(Property const& other) const
{
    return GetId() == other.GetId() && typeid(other) == typeid(ValueProperty) &&
           AreSame(m_value, static_cast<ValueProperty const&>(other).m_value);
}

void RefuseType(Property const& property)
{
    PropertyInfo::ValueType const type = property.GetPropertyValueType();
    char const* const names[] = { "text", "integer", "decimal", "boolean", "date", "color" };
    throw IllegalTypeException(type < PropertyInfo::OtherValue ? names[type] : std::to_string(type));
}

template class VEK_API ValuePropertyInfo<bool>;
template class VEK_API ValuePropertyInfo<int>;
template class VEK_API ValuePropertyInfo<long long>;
template class VEK_API ValuePropertyInfo<std::wstring>;
template class VEK_API ValuePropertyInfo<Decimal>;
template class VEK_API ValuePropertyInfo<DateTime>;
template class VEK_API ValuePropertyInfo<ColorBase<BGRAChannel>>;
template class VEK_API ValueProperty<bool>;
template class VEK_API ValueProperty<int>;
template class VEK_API ValueProperty<long long>;
template class VEK_API ValueProperty<std::wstring>;
template class VEK_API ValueProperty<Decimal>;
template class VEK_API ValueProperty<DateTime>;
template class VEK_API ValueProperty<ColorBase<BGRAChannel>>;

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
