#include "AllocationLimit.h"

#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

// Where all properties are there, the only allocation is for another template name, if it is long.
TEST(PropertyAllocation, AnAssignmentTakesNoneButForAnotherName)
{
    PropertyCollectionFactory factory(L"standard");
    PropertyCollectionFactoryAccess access(factory);
    for (unsigned int kind = 1; kind <= 50; ++kind)
    {
        access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(kind, L"", L"", 0, 0, 9));
        access.AddStandardProperty(kind);
    }
    auto const edited = factory.Create();
    GetValueProperty<long long>(*edited, 50).SetValue(9);
    auto const assign = [&] { factory.ObtainPropertyCollection(*edited, 7); };
    assign();
    assign(); // the first assignment makes room to keep what it changes

    Rows<wchar_t const*, int> const rows = {
        { L"", 0 }, { L"abc", 0 }, { L"a long name", 1 }, { L"a long name", 0 }, { L"", 0 }
    };
    for (auto const& [name, needed] : rows)
    {
        SCOPED_TRACE(needed);
        edited->SetTemplateName(name);
        GetValueProperty<long long>(*edited, 50).SetValue(name[0] % 10);
        std::wstring const before = factory.GetPropertyCollection(7U).GetTemplateName();
        if (needed != 0)
        {
            EXPECT_FALSE(AllocationLimit::RunsWith(needed - 1, assign));
            EXPECT_EQ(before, factory.GetPropertyCollection(7U).GetTemplateName());
        }
        EXPECT_TRUE(AllocationLimit::RunsWith(needed, assign));
        EXPECT_TRUE(*edited == factory.GetPropertyCollection(7U));
    }
}
