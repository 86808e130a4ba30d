#pragma once

#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class Property;

/// One kind of property: what its properties are called, what they carry, and how one is made. The program derives one
/// class per kind, or uses the ready-made ones (TextProperty.h, IntegerProperty.h and so on).
///
/// Lifetime: owned by the factory that it was given to, and valid as long as that one.
/// Equality: of id and value type; name and description are texts for people and do not count.
class VEK_API PropertyInfo
{
public:
    /// What a kind's properties carry. The library stores and compares it and never branches on it, so programs may go
    /// on with numbers of their own.
    enum ValueType : unsigned int
    {
        TextValue = 0,
        IntegerValue = 1,
        DecimalValue = 2,
        BooleanValue = 3,
        DateValue = 4,
        ColorValue = 5,
        OtherValue = 6
    };

    PropertyInfo(PropertyInfo const& other);
    virtual ~PropertyInfo();

    /// Calls OnClone: name and description stay.
    PropertyInfo& operator=(PropertyInfo const& other);
    /// Calls OnIsEqual.
    bool operator==(PropertyInfo const& other) const;

    unsigned int GetId() const noexcept;
    std::wstring const& GetName() const noexcept;
    std::wstring const& GetDescription() const noexcept;
    ValueType GetValueType() const noexcept;

protected:
    PropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description, ValueType valueType);

    /// Copies id and value type, on purpose neither name nor description: those belong to the place where a kind is
    /// shown.
    virtual void OnClone(PropertyInfo const& other);
    virtual bool OnIsEqual(PropertyInfo const& other) const;

public:
    /// A new property of this kind with its default value, which no collection holds and which carries this kind's id.
    virtual std::shared_ptr<Property> CreateProperty() const = 0;

private:
    unsigned int m_id;
    std::wstring m_name;
    std::wstring m_description;
    ValueType m_valueType;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
