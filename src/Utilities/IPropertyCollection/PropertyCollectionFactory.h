#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <VekApi.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactoryObserver;

/// The settings of one area of a program: the kinds of property, and the registry of the collections - the standard
/// one, the named templates, and the unnamed ones in use. Kinds come in through PropertyCollectionFactoryAccess.
///
/// Shape:     collections in the order of their registration, the standard one first, which nothing removes. Lookups
///            by id or name take the first match; names are compared exactly, unit by unit.
/// Ids:       the standard collection has 0; the others get rising numbers or the one that is asked for. 0xFFFFFFFF
///            means none. When the numbers run out, the smallest free one from 1 on is taken.
/// Lifetime:  owns kinds and collections. Must not be destroyed by a callback of its own, nor be called by properties
///            that die with it.
/// Observers: see PropertyCollectionFactoryObserver.
/// Callbacks: observers, functions that are passed in, and the virtual operations of kinds and properties may call the
///            factory. A walk visits what was there when it began and is still there when its turn comes. Clean-ups
///            pass over a collection that a running call is about, or which it is going to return; what they remove
///            from inside a callback lives until the outermost call has ended.
/// Errors:    all checks come before any change. What a callback throws passes through; what was done before stays,
///            unless said otherwise.
/// Cost:      by id constant; by name, and an unnamed collection by its values, linear in the collections. Those of
///            ready-made properties are told apart without looking at their values, those with properties of other
///            classes value by value. New contents for a collection that has all the properties allocate nothing, but
///            for another template name when a string does not hold it in place.
/// Threads:   one at a time.
class VEK_API PropertyCollectionFactory
{
public:
    static unsigned int const c_standard_property_collection_id = 0;

    /// Makes the standard collection; `name` is its template name.
    explicit PropertyCollectionFactory(std::wstring const& name);
    PropertyCollectionFactory(PropertyCollectionFactory const&) = delete;
    PropertyCollectionFactory& operator=(PropertyCollectionFactory const&) = delete;
    /// Tells no observer. Obtainers stay behind without a collection.
    ~PropertyCollectionFactory();

    /// @name Reading
    /// @{

    PropertyCollection const& GetStdPropertyCollection() const noexcept;
    /// The standard one included.
    unsigned long long GetPropertyCollectionCount() const noexcept;

    /// Throw IllegalPropertyCollectionIdException when there is none.
    PropertyCollection const& GetPropertyCollection(unsigned int id) const;
    PropertyCollection& GetChangeablePropertyCollection(unsigned int id);

    /// Throws std::out_of_range ("invalid vector subscript").
    PropertyCollection& GetChangeablePropertyCollectionByIndex(unsigned long long index);

    /// Throws EmptyTemplateNameException, or UnknownTemplateException when there is none.
    PropertyCollection const& GetPropertyCollection(std::wstring const& templateName) const;
    /// True for an empty name as soon as there is an unnamed collection.
    bool ExistsTemplate(std::wstring const& templateName) const noexcept;

    /// A copy, not registered, with the id and the name of the template: change it and hand it back.
    /// Throws EmptyTemplateNameException, or UnknownTemplateException when there is none.
    PropertyCollection GetChangeableTemplatePropertyCollection(std::wstring const& templateName) const;

    /// A new unnamed collection with the values of the standard one, not registered. No observer is told.
    std::unique_ptr<PropertyCollection> Create() const;

    /// Calls `action` for each collection that `skip` does not pass over; without `skip`, for each.
    void ForEachPropertyCollection(std::function<void(PropertyCollection const&)> action,
                                   std::function<bool(PropertyCollection const&)> skip);

    /// @}
    /// @name Changing
    /// @{

    /// Takes in `source`, a collection that somebody made or edited, and answers the registered one that stands for it
    /// from now on, never an unregistered one:
    ///  - If a collection has `id` (c_no_id: none), it gets the contents of `source` and keeps its id. AfterUpdate,
    ///    also when nothing changes.
    ///  - An unnamed source: the first collection whose every property equals the source's is shared and not touched,
    ///    be it unnamed, a template or the standard. So an unmodified copy may find a template that has the same
    ///    values before the collection it was copied from. Without one, a new collection is registered under `id`, or
    ///    a new id, with the contents of the source, not overridden and deletable. AfterCreate.
    ///  - A named source: a template of its name that is overridden is answered as it is. Another one gets the contents
    ///    of the source, flags included, so that an equal source may make it overridden; AfterUpdate only if a
    ///    property differed. Without a template of that name, one is registered, with the flags of the source.
    ///    AfterCreate.
    /// `source` may belong to another factory, whose kinds are then taken by their ids.
    /// Throws IllegalPropertyCollectionIdException for a property of unknown kind; InvalidStateException for a kind
    /// that makes no proper property, and when the result is just being removed. Nothing has changed then, nor when a
    /// kind or property throws; when an observer throws, the change is made.
    PropertyCollection const& ObtainPropertyCollection(PropertyCollection const& source, unsigned int id);

    /// ObtainPropertyCollection for a source with a name. Throws EmptyTemplateNameException.
    void AssignTemplatePropertyCollection(PropertyCollection const& source);

    /// BeforeRename, the change, AfterRename. The standard collection is renamed like any other.
    /// Throws EmptyTemplateNameException for either name; IllegalTemplateNameException when `newName` is taken, also by
    /// the collection itself; UnknownTemplateException.
    void RenameTemplatePropertyCollection(std::wstring const& oldName, std::wstring const& newName);

    /// Takes the name away; id, flags and values stay. BeforeRename, AfterRename.
    /// Throws EmptyTemplateNameException, UnknownTemplateException, IllegalTemplateNameException for the standard one.
    void ConvertIntoNonTemplatePropertyCollection(std::wstring const& templateName);

    /// Asks `keep` about every collection but the standard one, templates only without `keepTemplates`, those that are
    /// not deletable only with `includeNonDeletable`; then removes those that it refused, from the last to the first,
    /// each after its BeforeDelete. When an observer throws, the collection that it was told about and those before it
    /// stay; when `keep` throws, all stay.
    void CleanUp(std::function<bool(PropertyCollection const&)> keep, bool keepTemplates, bool includeNonDeletable);

    /// Removes as CleanUp would whatever it asks about, and goes on numbering behind the greatest id left. Without
    /// `keepTemplates`, the standard collection gets back its name and its default values, is not overridden any more,
    /// and no observer is told of that. When a property throws there, those before it have their default.
    void Reset(bool keepTemplates, bool includeNonDeletable);

    /// @}
    /// @name Observers
    /// @{

    /// A second time is ignored.
    void RegisterObserver(PropertyCollectionFactoryObserver& observer);
    /// One that is not registered is ignored.
    void UnregisterObserver(PropertyCollectionFactoryObserver& observer);
    void ForEachObserver(std::function<void(PropertyCollectionFactoryObserver&)> action);
    /// For a program that has changed the kinds or the standard properties.
    void NotifyFactoryChanged();

    /// @}

private:
    friend class PropertyCollectionFactoryAccess;
    friend class PropertyCollectionObtainer;

    using Notification = void (PropertyCollectionFactoryObserver::*)(PropertyCollection const&);

    void AddPropertyInfo(PropertyInfo* info);
    PropertyInfo const* GetPropertyInfo(unsigned int id) const;
    void ForEachPropertyInfo(std::function<void(PropertyInfo const&)> action) const;
    unsigned int PickNextPropertyCollectionId(unsigned int requestedId);

    PropertyCollection& FindTemplate(std::wstring const& templateName) const;
    void Notify(Notification notification, PropertyCollection const& collection);

    PropertyCollection* FindEqual(PropertyCollection const& source) const;
    PropertyCollection const& Update(PropertyCollection& target, PropertyCollection const& source);
    PropertyCollection const& UpdateTemplate(PropertyCollection& target, PropertyCollection const& source);
    PropertyCollection const& Register(PropertyCollection const& source, unsigned int id);
    void ChangeTemplateName(PropertyCollection& collection, std::wstring newName);

    void CleanUpWhere(std::function<bool(PropertyCollection const&)> const& keep, bool keepTemplates,
                      bool includeNonDeletable);
    void Remove(PropertyCollection& collection, std::size_t index);
    void DetachObtainers(PropertyCollection const& collection);

    std::unique_ptr<Internal::FactoryState> m_state;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
