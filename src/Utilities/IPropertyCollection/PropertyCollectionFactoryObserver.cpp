#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyCollectionFactoryObserver::PropertyCollectionFactoryObserver() = default;
PropertyCollectionFactoryObserver::PropertyCollectionFactoryObserver(PropertyCollectionFactoryObserver const&) =
    default;
PropertyCollectionFactoryObserver& PropertyCollectionFactoryObserver::operator=(
    PropertyCollectionFactoryObserver const&) = default;
PropertyCollectionFactoryObserver::~PropertyCollectionFactoryObserver() = default;

void PropertyCollectionFactoryObserver::AfterCreate(PropertyCollection const&)
{
}

void PropertyCollectionFactoryObserver::BeforeDelete(PropertyCollection const&)
{
}

void PropertyCollectionFactoryObserver::AfterUpdate(PropertyCollection const&)
{
}

void PropertyCollectionFactoryObserver::BeforeRename(PropertyCollection const&)
{
}

void PropertyCollectionFactoryObserver::AfterRename(PropertyCollection const&)
{
}

void PropertyCollectionFactoryObserver::AfterInfoChanged(PropertyInfo const&, std::wstring const&)
{
}

void PropertyCollectionFactoryObserver::AfterFactoryChanged(PropertyCollectionFactory&)
{
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
