#pragma once

#include <Utilities/IPropertyCollection/Property.h>
#include <VekApi.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactory;

namespace Internal
{
class Assignment;
class CollectionList;
class MadeProperties;
class Pin;
class PropertyFinder;
struct FactoryState;
} // namespace Internal

/// An ordered set of properties, at most one of each kind, that a program keeps together: the standard settings, a
/// template by name, or an unnamed set.
///
/// Made by:   the factory. A copy is free to be changed and handed back with ObtainPropertyCollection.
/// Lifetime:  a registered one lives until the factory removes it, and until the outermost running call of the factory
///            has ended; copies belong to the caller. Must not be used after its factory's end, except to be destroyed.
///            Properties are never taken out; when a collection dies, they have none any more.
/// Callbacks: properties and kinds may call the factory. Properties added meanwhile are not visited.
class VEK_API PropertyCollection
{
public:
    /// The id of a collection that no factory holds.
    static unsigned int const c_no_id = 0xFFFFFFFF;

    /// Keeps id and template name, is not overridden, and deletable.
    /// Throws IllegalPropertyCollectionIdException for a property whose kind the factory does not know,
    /// InvalidStateException for a kind that makes no proper property, and what kinds and properties throw.
    PropertyCollection(PropertyCollection const& other);
    ~PropertyCollection();

    unsigned int GetId() const noexcept;

    /// Empty for an unnamed collection.
    std::wstring const& GetTemplateName() const noexcept;
    /// Tells no observer; RenameTemplatePropertyCollection of the factory does.
    void SetTemplateName(std::wstring const& templateName);

    /// An overridden template takes in no changes. The single d is the interface's own spelling.
    bool IsOverriden() const noexcept;
    void SetIsOverriden(bool isOverriden) noexcept;

    /// Whether a clean-up may remove it.
    bool IsDeletable() const noexcept;
    void SetDeletable(bool isDeletable) noexcept;

    /// Whether it is this very object that the factory has as its standard; an equal one is not.
    bool IsStdPropertyCollection() const noexcept;

    PropertyCollectionFactory& GetPropertyCollectionFactory() const noexcept;

    bool HasProperty(unsigned int id) const noexcept;
    /// Throws IllegalPropertyCollectionIdException when there is none.
    Property& GetProperty(unsigned int id) const;
    std::wstring GetUserText(unsigned int id) const;

    /// In the order in which they were added. The walk goes on with the properties that it began with, also when
    /// `action` adds some or lets the collection go; what `action` throws ends it.
    void ForEachProperty(std::function<void(Property&)> action);
    void ForEachProperty(std::function<void(Property const&)> action) const;

    /// True when every property of `other` has an equal one here. What only this one has is not looked at, so the
    /// relation is not symmetric, and a collection without properties equals anything. A property that is missing here
    /// makes it false.
    bool ArePropertiesEqual(PropertyCollection const& other) const;

    /// False for two different ids (c_no_id matches any) and for different template names; then ArePropertiesEqual.
    /// The flags do not count.
    bool operator==(PropertyCollection const& other) const;

private:
    friend class Property;
    friend class PropertyCollectionFactory;
    friend class PropertyCollectionFactoryAccess;
    friend class PropertyCollectionObtainer;
    friend class Internal::Assignment;
    friend class Internal::CollectionList;
    friend class Internal::MadeProperties;
    friend class Internal::Pin;
    friend class Internal::PropertyFinder;
    friend struct Internal::FactoryState;

    enum class Registration : unsigned char
    {
        None,
        Held,
        Leaving // its BeforeDelete is being told
    };

    PropertyCollection(Internal::FactoryState& factory, std::wstring templateName) noexcept;
    PropertyCollection& operator=(PropertyCollection const& other);

    /// Takes over name, flags and properties of `other`; the id becomes `id`. A collection that is not deletable stays
    /// so: what somebody protected does not lose that with new contents. When it throws, this one is as before.
    /// Allocates nothing when all properties are there, but for another name that a string does not hold in place.
    void Assign(PropertyCollection const& other, unsigned int id);
    Property* FindProperty(unsigned int id) const noexcept;

    /// Takes in a property that names this collection already; there must be room for it.
    void Hold(std::shared_ptr<Property> property) noexcept;
    void CountIn(Property const& property) noexcept;
    void CountOut(Property const& property) noexcept;
    /// True when ArePropertiesEqual is false both ways, as can be told without looking at the properties; false when
    /// they must be asked.
    bool IsKnownToDiffer(PropertyCollection const& other) const noexcept;
    /// ArePropertiesEqual of the collection that `finder` searches.
    static bool AreEqual(Internal::PropertyFinder& finder, PropertyCollection const& other);

    Internal::FactoryState& m_factory;
    std::vector<std::shared_ptr<Property>> m_properties;
    unsigned long long m_fingerprints = 0;  // their sum, each mixed with its id
    unsigned int m_unknownFingerprints = 0; // properties that have none
    unsigned int m_id = c_no_id;
    bool m_isOverriden = false;
    bool m_isDeletable = true;
    Registration m_registration = Registration::None;
    mutable unsigned int m_pins = 0;      // running calls that are about it: no clean-up removes it
    mutable unsigned int m_obtainers = 0; // that have it in use
    std::wstring m_templateName;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
