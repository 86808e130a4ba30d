#pragma once

#include <Utilities/Event.h>
#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactory;

/// Holds the collection that one consumer has in use, at first the standard one, and tells when it is another one.
///
/// Changed:  raised with the new collection after every real change; not when the same one is obtained again, nor when
///           its contents change. When a handler throws, the later ones are not called and the new collection stays.
/// Removal:  when the factory removes the collection in use, the standard one takes its place, and the event is raised
///           when the old one has left the registry but is not destroyed yet.
/// Lifetime: may die after its factory; it has no collection then, and all but destroying it throws
///           InvalidStateException. Must not be destroyed by a handler of its own.
class VEK_API PropertyCollectionObtainer
{
public:
    explicit PropertyCollectionObtainer(PropertyCollectionFactory& factory);
    PropertyCollectionObtainer(PropertyCollectionObtainer const&) = delete;
    /// Takes over the collection in use, not the handlers. Throws ArgumentException for one of another factory.
    PropertyCollectionObtainer& operator=(PropertyCollectionObtainer const& other);
    ~PropertyCollectionObtainer();

    PropertyCollection const& GetPropertyCollection() const;
    /// An unnamed copy without id, to be edited and handed back.
    PropertyCollection GetChangeablePropertyCollection() const;

    /// Uses what ObtainPropertyCollection answers for it. Throws as that one does; the old collection stays in use
    /// then.
    void AssignPropertyCollection(PropertyCollection const& edited);
    /// The same for the registered collection with that id, so that an unnamed one may give way to an equal one before
    /// it. Throws IllegalPropertyCollectionIdException when there is none.
    void AssignPropertyCollection(unsigned int id);

    Event<PropertyCollection const&> const& GetChangedEvent() const noexcept;

private:
    friend class PropertyCollectionFactory;

    PropertyCollectionFactory& GetFactory() const;
    void Use(PropertyCollection const& collection) noexcept;
    void Change(PropertyCollection const& collection);
    void FallBackFrom(PropertyCollection const& removed) noexcept;
    void TellFallBack();
    void DropFallBack() noexcept;
    void ForgetFactory() noexcept;

    PropertyCollectionFactory* m_factory; // null: it is gone
    PropertyCollection const* m_current;
    bool m_hasFallenBack = false; // and has not told it yet
    Event<PropertyCollection const&> m_changed;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
