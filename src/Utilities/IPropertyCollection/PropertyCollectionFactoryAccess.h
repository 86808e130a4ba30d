#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <Utilities/IPropertyCollection/PropertyInfo.h>
#include <VekApi.h>

#include <functional>
#include <memory>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactory;

/// Fills a factory: with the kinds of property, with the properties of the standard collection, or with all that a file
/// had kept. For the part of a program that owns the factory; after a change at run time, call NotifyFactoryChanged.
///
/// Lifetime: the factory must outlive it.
class VEK_API PropertyCollectionFactoryAccess
{
public:
    explicit PropertyCollectionFactoryAccess(PropertyCollectionFactory& factory) noexcept;

    /// The factory owns the kind from now on. Throws ArgumentException for a null pointer and for an id that is taken;
    /// the kind is destroyed then.
    PropertyInfo const& AddPropertyInfo(std::unique_ptr<PropertyInfo> info);

    /// Adds a property of the kind, with its default value, to the standard collection and to every other registered
    /// one that has none, so that a module which is loaded later fits in. Throws IllegalPropertyCollectionIdException
    /// for an unknown kind, ArgumentException when the standard collection has one already, InvalidStateException when
    /// the kind gives no property or one of another id, and what the kind throws. No collection has changed then.
    void AddStandardProperty(unsigned int id);

    /// Null when there is none.
    PropertyInfo const* FindPropertyInfo(unsigned int id) const;
    /// In the order in which they were added; those that come meanwhile are not visited.
    void ForEachPropertyInfo(std::function<void(PropertyInfo const&)> action) const;

    /// @name Restoring a factory from a file
    /// @{

    /// The number that the next collection gets; PropertyCollection::c_no_id when they have run out.
    unsigned int GetNextId() const noexcept;

    /// A collection with this id and no properties, not registered.
    std::unique_ptr<PropertyCollection> CreateEmptyCollection(unsigned int id) const;

    /// A new property of the kind, with its default value. Throws ArgumentException for a collection that is registered
    /// or of another factory, and for a second property of a kind; otherwise as AddStandardProperty.
    Property& AddProperty(PropertyCollection& collection, unsigned int id) const;

    /// Puts the contents of the first one into the standard collection and registers the others behind it, with their
    /// ids, names and flags. The next number is `nextId`, but greater than all ids. No observer is told.
    /// Throws ArgumentException unless the first one, and it alone, has the id of the standard collection, all ids
    /// differ, and none is registered or of another factory; InvalidStateException when the factory has more than its
    /// standard collection. The factory is as before then, and when a property throws.
    void RestoreCollections(std::vector<std::unique_ptr<PropertyCollection>> collections, unsigned int nextId);

    /// @}

private:
    void RequireFree(PropertyCollection const& collection) const;
    void RequireRestorable(std::vector<std::unique_ptr<PropertyCollection>> const& collections) const;

    PropertyCollectionFactory& m_factory;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
