#pragma once

#include <Utilities/IPropertyCollection/Internal/CollectionList.h>
#include <Utilities/IPropertyCollection/Internal/SerialList.h>
#include <Utilities/IPropertyCollection/PropertyCollection.h>
#include <Utilities/IPropertyCollection/PropertyInfo.h>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

class PropertyCollectionFactory;
class PropertyCollectionFactoryObserver;
class PropertyCollectionObtainer;

namespace Internal
{

/// Where an assignment keeps the values that it changes, until it is done.
struct Backup
{
    PropertyCollection values;
    std::vector<Property*> changed;
};

/// What a factory holds. Members die from the last to the first: collections before kinds.
struct FactoryState
{
    FactoryState(PropertyCollectionFactory& owner, std::wstring const& factoryName) : factory(owner), name(factoryName)
    {
    }

    /// A collection of this factory that nobody has registered yet.
    std::unique_ptr<PropertyCollection> MakeCollection(std::wstring templateName)
    {
        return std::unique_ptr<PropertyCollection>(new PropertyCollection(*this, std::move(templateName)));
    }
    Backup& BorrowBackup();
    void ReturnBackup() noexcept;

    PropertyCollectionFactory& factory;
    std::wstring name;
    unsigned int nextId = 0; // PropertyCollection::c_no_id: the numbers have run out
    SerialList<PropertyCollectionFactoryObserver> observers;
    SerialList<PropertyCollectionObtainer> obtainers;
    std::vector<std::unique_ptr<PropertyInfo>> infos;
    std::unordered_map<unsigned int, PropertyInfo const*> infosById;
    std::vector<std::unique_ptr<Backup>> backups; // one for each assignment inside another
    std::size_t backupsInUse = 0;
    unsigned int runningCalls = 0;
    std::vector<std::unique_ptr<PropertyCollection>> removed; // they die when no call runs any more
    CollectionList collections;
};

} // namespace Internal

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
