#include "Kinds.h"

#include <Utilities/IPropertyCollection/BooleanProperty.h>
#include <Utilities/IPropertyCollection/DateProperty.h>
#include <Utilities/IPropertyCollection/DecimalProperty.h>
#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/TextProperty.h>

using namespace Vek::Framework::Utilities;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace Example
{

void AddKinds(PropertyCollectionFactory& factory)
{
    PropertyCollectionFactoryAccess access(factory);
    access.AddPropertyInfo(std::make_unique<TextPropertyInfo>(PrinterName, L"Drucker", L"Name im System", L""));
    access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(Tray, L"Fach", L"0: der Treiber w\u00e4hlt", 0, 0, 9));
    access.AddPropertyInfo(std::make_unique<BooleanPropertyInfo>(Duplex, L"Duplex", L"beide Seiten", false));
    access.AddPropertyInfo(std::make_unique<DecimalPropertyInfo>(Margin, L"Rand", L"in Millimetern", Decimal(1250, -2),
                                                                 Decimal(0), Decimal(50)));
    access.AddPropertyInfo(std::make_unique<DatePropertyInfo>(ValidFrom, L"G\u00fcltig ab", L"erster Tag",
                                                              DateTime::FromComponents(2024, 1, 1, 0, 0, 0)));
    for (unsigned int kind = PrinterName; kind <= ValidFrom; ++kind)
        access.AddStandardProperty(kind);
}

} // namespace Example
