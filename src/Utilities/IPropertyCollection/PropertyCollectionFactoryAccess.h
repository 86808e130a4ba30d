#pragma once

#include <Utilities/IPropertyCollection/PropertyInfo.h>
#include <VekApi.h>

#include <functional>
#include <memory>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactory;

/// Fills a factory: with the kinds of property, and with the properties of the standard collection. For the part of a
/// program that owns the factory; after a change at run time, call NotifyFactoryChanged.
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

private:
    PropertyCollectionFactory& m_factory;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
