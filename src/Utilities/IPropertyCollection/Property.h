#pragma once

#include <Utilities/IPropertyCollection/PropertyInfo.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollection;

template <class V>
class VEK_TEMPLATE_API ValueProperty;

namespace Internal
{
class Assignment;
class MadeProperties;
class PropertyFinder;
} // namespace Internal

/// One value in a collection. The program derives the classes that carry values, or uses the ready-made ones.
///
/// Lifetime:  shared; a collection holds its properties as long as it lives, and a property that outlives it has none.
///            The kind belongs to the factory and must be there when it is asked for.
/// Callbacks: the virtual operations may throw and may call the factory; what becomes of the operation that called them
///            stands with that operation.
class VEK_API Property
{
public:
    /// The copy names the same collection, which does not hold it and does not tell it when it dies.
    Property(Property const& other);
    virtual ~Property();

    /// Calls OnClone. Throws ArgumentException when a collection holds this property and `other` is of another kind: no
    /// collection may come to hold two of one kind.
    Property& operator=(Property const& other);
    /// Call OnIsEqual.
    bool operator==(Property const& other) const;
    bool operator!=(Property const& other) const;

    unsigned int GetId() const noexcept;

    /// Throws InvalidStateException when no collection holds it.
    PropertyCollection& GetPropertyCollection() const;

    /// As the kind says.
    std::wstring const& GetPropertyName() const;
    std::wstring const& GetPropertyDescription() const;
    PropertyInfo::ValueType GetPropertyValueType() const;

    /// The value for people to read.
    virtual std::wstring GetUserText() const = 0;

protected:
    explicit Property(unsigned int id) noexcept;

    /// Null when no collection holds it.
    PropertyCollection* FindPropertyCollection() const noexcept;

    /// Copies the id. A derived class copies its value, throws IllegalTypeException for a class that it cannot copy,
    /// and calls this.
    virtual void OnClone(Property const& other);
    /// Compares the ids. A derived class compares its value as well; a class that it does not know is not equal.
    virtual bool OnIsEqual(Property const& other) const;

public:
    /// Puts the value back to the default of its kind.
    virtual void SetToDefault() = 0;
    virtual PropertyInfo const& GetPropertyInfo() const = 0;

private:
    friend class Internal::Assignment;
    friend class Internal::MadeProperties;
    friend class Internal::PropertyFinder;
    friend class PropertyCollection;
    template <class V>
    friend class ValueProperty;

    /// For the ready-made classes, whenever their value has changed: equal values have equal fingerprints. 0 says that
    /// nothing is known of the value, as with all classes of programs.
    void SetFingerprint(unsigned int fingerprint) noexcept;

    unsigned int m_id;
    unsigned int m_fingerprint : 31 = 0;
    unsigned int m_isHeld : 1 = 0; // by m_collection, which counts the fingerprint in
    PropertyCollection* m_collection = nullptr;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
