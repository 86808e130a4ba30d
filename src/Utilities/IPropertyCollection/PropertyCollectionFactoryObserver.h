#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollection;
class PropertyCollectionFactory;
class PropertyInfo;

/// Is told what happens to the collections of a factory. Override what is of interest; the base does nothing.
///
/// Lifetime:  not owned; unregister it before it dies.
/// Order:     observers are called in the order of their registration, all of them about one collection before the
///            factory does anything further.
/// Callbacks: a notification may register and unregister observers, itself included, and call the factory. Observers
///            that come meanwhile are told from the next notification on, those that left are not told any more.
/// Errors:    what a notification throws passes through to the caller of the factory; the later observers are not told,
///            and what was done before stays.
class VEK_API PropertyCollectionFactoryObserver
{
public:
    PropertyCollectionFactoryObserver();
    PropertyCollectionFactoryObserver(PropertyCollectionFactoryObserver const&);
    /// Copies nothing: a registration belongs to the object.
    PropertyCollectionFactoryObserver& operator=(PropertyCollectionFactoryObserver const&);
    virtual ~PropertyCollectionFactoryObserver();

protected:
    friend class PropertyCollectionFactory;

    /// It was added to the registry.
    virtual void AfterCreate(PropertyCollection const& collection);
    /// It is going to be removed. Meanwhile it is not handed out: ObtainPropertyCollection throws InvalidStateException
    /// where it would be the result.
    virtual void BeforeDelete(PropertyCollection const& collection);
    /// It received new contents, which need not differ from the old ones.
    virtual void AfterUpdate(PropertyCollection const& collection);
    /// Its template name is going to change.
    virtual void BeforeRename(PropertyCollection const& collection);
    virtual void AfterRename(PropertyCollection const& collection);
    /// A kind changed. The library never calls it; it is there for programs that change their kinds.
    virtual void AfterInfoChanged(PropertyInfo const& info, std::wstring const& text);
    /// The program called NotifyFactoryChanged.
    virtual void AfterFactoryChanged(PropertyCollectionFactory& factory);
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
