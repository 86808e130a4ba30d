#pragma once

#include <PropertyStore/PropertyStoreResult.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <string>

namespace Vek::Framework::PropertyStore::Internal
{

/// The document of a factory; `document` is complete if the result is a success.
PropertyStoreResult WriteStore(Utilities::IPropertyCollection::Native::PropertyCollectionFactory const& factory,
                               std::string& document);

} // namespace Vek::Framework::PropertyStore::Internal
