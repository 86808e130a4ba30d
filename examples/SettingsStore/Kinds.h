#pragma once

#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

namespace Example
{

/// The numbers of the kinds stand in files: they are never used for anything else.
enum Kind : unsigned int
{
    PrinterName = 1, // text
    Tray = 2,        // integer, 0 lets the driver choose
    Duplex = 3,      // boolean
    Margin = 4,      // decimal, millimetres
    ValidFrom = 5,   // date
};

/// Gives the factory its kinds and its standard collection their default values.
void AddKinds(Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollectionFactory& factory);

} // namespace Example
