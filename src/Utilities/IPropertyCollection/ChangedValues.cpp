#include <Utilities/IPropertyCollection/ChangedValues.h>

#include <unordered_map>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

std::vector<ChangedValue> GetChangedValues(PropertyCollection const& oldCollection,
                                           PropertyCollection const& newCollection)
{
    std::unordered_map<unsigned int, Property const*> added;
    newCollection.ForEachProperty([&](Property const& property) { added.emplace(property.GetId(), &property); });
    std::vector<ChangedValue> changed;
    oldCollection.ForEachProperty(
        [&](Property const& property)
        {
            auto const counterpart = added.find(property.GetId());
            if (counterpart == added.end())
            {
                changed.push_back({ &property.GetPropertyInfo(), property.GetUserText(), L"" });
                return;
            }
            if (property != *counterpart->second)
                changed.push_back(
                    { &property.GetPropertyInfo(), property.GetUserText(), counterpart->second->GetUserText() });
            added.erase(counterpart);
        });
    newCollection.ForEachProperty(
        [&](Property const& property)
        {
            if (added.contains(property.GetId()))
                changed.push_back({ &property.GetPropertyInfo(), L"", property.GetUserText() });
        });
    return changed;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
