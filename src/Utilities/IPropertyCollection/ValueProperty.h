#pragma once

#include <Utilities/ColorBase.h>
#include <Utilities/DateTime.h>
#include <Utilities/Decimal.h>
#include <Utilities/IPropertyCollection/Property.h>
#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <Utilities/IPropertyCollection/StoredProperty.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// What the ready-made kinds have in common: a default, which values are allowed, and the texts of a value. The library
/// holds and exports the instances for the kinds of TextProperty.h, IntegerProperty.h and so on.
template <class V>
class VEK_TEMPLATE_API ValuePropertyInfo : public PropertyInfo
{
public:
    ~ValuePropertyInfo() override;

    /// A ValueProperty<V>.
    std::shared_ptr<Property> CreateProperty() const override;

    V const& GetDefault() const noexcept;

    /// The value as a property holds it. Throws IllegalValueException for one that the kind does not allow.
    virtual V Accept(V const& value) const = 0;
    /// For people: 1.234,50.
    virtual std::wstring GetUserText(V const& value) const = 0;
    /// For files: 1234.50.
    virtual std::wstring GetStoredText(V const& value) const = 0;
    /// The reverse. Throws IllegalValueException for a text that is no value; whether it is allowed, Accept says.
    virtual V ReadStoredText(std::wstring const& text) const = 0;

protected:
    ValuePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description, ValueType valueType);

    /// Throws IllegalValueException.
    void SetDefault(V const& value);

private:
    V m_default{};
};

/// One value of a ready-made kind.
///
/// Equality: of kind and value; decimals also have the same fraction digits, so that 1.5 and 1.50 are kept apart.
/// Lifetime: its kind, and so the factory, must outlive it.
template <class V>
class VEK_TEMPLATE_API ValueProperty final : public Property, public StoredProperty
{
public:
    explicit ValueProperty(ValuePropertyInfo<V> const& info);
    ~ValueProperty() override;

    V const& GetValue() const noexcept;
    /// Throws IllegalValueException for a value that the kind does not allow, and
    /// PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException; the value stays then.
    void SetValue(V const& value);

    std::wstring GetUserText() const override;
    void SetToDefault() override;
    PropertyInfo const& GetPropertyInfo() const override;

    std::wstring GetStoredText() const override;
    /// Throws as SetValue.
    void SetStoredText(std::wstring const& text) override;

protected:
    /// Throws IllegalTypeException for another class, IllegalValueException for a value that this kind does not allow.
    void OnClone(Property const& other) override;
    bool OnIsEqual(Property const& other) const override;

private:
    ValuePropertyInfo<V> const& m_info;
    V m_value;
};

/// Throws IllegalTypeException with the type of `property`: "text", "integer", "decimal", "boolean", "date", "color",
/// or the number of another one.
[[noreturn]] VEK_API void RefuseType(Property const& property);

/// The property of a ready-made kind in a collection. Throws IllegalPropertyCollectionIdException when there is none,
/// IllegalTypeException when its values are of another type.
template <class V>
ValueProperty<V>& GetValueProperty(PropertyCollection const& collection, unsigned int id)
{
    Property& property = collection.GetProperty(id);
    auto* const found = dynamic_cast<ValueProperty<V>*>(&property);
    if (found == nullptr)
        RefuseType(property);
    return *found;
}

#if !defined(VEK_BUILDING_LIBRARY)
extern template class VEK_API ValuePropertyInfo<bool>;
extern template class VEK_API ValuePropertyInfo<int>;
extern template class VEK_API ValuePropertyInfo<long long>;
extern template class VEK_API ValuePropertyInfo<std::wstring>;
extern template class VEK_API ValuePropertyInfo<Decimal>;
extern template class VEK_API ValuePropertyInfo<DateTime>;
extern template class VEK_API ValuePropertyInfo<ColorBase<BGRAChannel>>;
extern template class VEK_API ValueProperty<bool>;
extern template class VEK_API ValueProperty<int>;
extern template class VEK_API ValueProperty<long long>;
extern template class VEK_API ValueProperty<std::wstring>;
extern template class VEK_API ValueProperty<Decimal>;
extern template class VEK_API ValueProperty<DateTime>;
extern template class VEK_API ValueProperty<ColorBase<BGRAChannel>>;
#endif

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
