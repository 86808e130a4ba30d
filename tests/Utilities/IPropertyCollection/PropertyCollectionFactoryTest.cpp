#include "HookedProperty.h"

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Vek;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace
{

constexpr unsigned int c_none = PropertyCollection::c_no_id;

struct Watched : HookedFactory
{
    Watched() : HookedFactory({ 1, 2 }) { RegisterObserver(observer); }
    std::string Take() { return std::exchange(trace, {}); }

    std::string trace;
    TracingObserver observer{ trace };
};

} // namespace

TEST(PropertyCollectionFactory, FilledByAccess)
{
    HookedFactory factory({ 1, 2 }, 1);
    PropertyCollectionFactoryAccess access(factory);
    EXPECT_THROW(access.AddPropertyInfo(nullptr), ArgumentException);
    EXPECT_THROW(access.AddPropertyInfo(std::make_unique<HookedKind>(1)), ArgumentException);
    EXPECT_THROW(access.AddStandardProperty(1), ArgumentException);
    EXPECT_THROW(access.AddStandardProperty(3), IllegalPropertyCollectionIdException);
    PropertyCollection const& other = factory.Obtain(L"", 5);
    access.AddStandardProperty(2);
    EXPECT_EQ("1:5 2:20", Values(other));

    auto broken = std::make_unique<HookedKind>(4);
    broken->isBroken = true;
    access.AddPropertyInfo(std::move(broken));
    EXPECT_THROW(access.AddStandardProperty(4), InvalidStateException);
    EXPECT_EQ("1:5 2:20", Values(other));
    std::string ids;
    access.ForEachPropertyInfo([&](PropertyInfo const& info) { ids += std::to_string(info.GetId()); });
    EXPECT_EQ("124", ids);
}

TEST(PropertyCollectionFactory, Lookups)
{
    HookedFactory factory({ 1 });
    EXPECT_EQ(1u, factory.GetPropertyCollectionCount());
    EXPECT_EQ(&factory.GetStdPropertyCollection(), &factory.GetPropertyCollection(L"standard"));
    EXPECT_EQ(&factory.GetStdPropertyCollection(), &factory.GetPropertyCollection(0u));
    EXPECT_FALSE(factory.ExistsTemplate(L""));
    factory.Obtain(L"", 5);
    EXPECT_TRUE(factory.ExistsTemplate(L""));
    EXPECT_FALSE(factory.ExistsTemplate(L"Standard"));
    try
    {
        factory.GetChangeablePropertyCollectionByIndex(2);
        ADD_FAILURE();
    }
    catch (std::out_of_range const& error)
    {
        EXPECT_STREQ("invalid vector subscript", error.what());
    }
    EXPECT_THROW(factory.GetPropertyCollection(2u), IllegalPropertyCollectionIdException);
    EXPECT_THROW(factory.GetPropertyCollection(L""), EmptyTemplateNameException);
    EXPECT_THROW(factory.GetChangeableTemplatePropertyCollection(L"x"), UnknownTemplateException);
    EXPECT_THROW(factory.AssignTemplatePropertyCollection(*factory.Make()), EmptyTemplateNameException);
    EXPECT_THROW(factory.ForEachPropertyCollection({}, {}), std::bad_function_call);
    EXPECT_THROW(factory.CleanUp({}, false, false), std::bad_function_call);
}

TEST(PropertyCollectionFactory, WorkedExamplesOfTheMerge)
{
    Watched factory;
    auto const source = factory.Make();
    EXPECT_TRUE(factory.ObtainPropertyCollection(*source, c_none).IsStdPropertyCollection());
    EXPECT_EQ("", factory.Take());
    ValueOf(*source, 1) = 1;
    EXPECT_EQ(1u, factory.ObtainPropertyCollection(*source, c_none).GetId());
    EXPECT_EQ("+1 ", factory.Take());
    ValueOf(*source, 1) = 2;
    EXPECT_EQ(10u, factory.ObtainPropertyCollection(*source, 10).GetId());
    ValueOf(*source, 1) = 3;
    EXPECT_EQ(11u, factory.ObtainPropertyCollection(*source, c_none).GetId());
    EXPECT_EQ("+10 +11 ", factory.Take());
    factory.ObtainPropertyCollection(*source, 11);
    EXPECT_EQ("=11 ", factory.Take()); // by id also when nothing changes

    source->SetTemplateName(L"t");
    PropertyCollection& made =
        factory.GetChangeablePropertyCollection(factory.ObtainPropertyCollection(*source, c_none).GetId());
    factory.AssignTemplatePropertyCollection(*source);
    EXPECT_EQ("+12 ", factory.Take());
    ValueOf(*source, 2) = 7;
    factory.AssignTemplatePropertyCollection(*source);
    EXPECT_EQ("=12 ", factory.Take());
    source->SetIsOverriden(true);
    factory.AssignTemplatePropertyCollection(*source); // equal, yet the flag comes over
    EXPECT_EQ("", factory.Take());
    EXPECT_TRUE(made.IsOverriden());
    ValueOf(*source, 2) = 8;
    factory.AssignTemplatePropertyCollection(*source);
    EXPECT_EQ("", factory.Take());
    EXPECT_EQ(7, ValueOf(made, 2));
}

TEST(PropertyCollectionFactory, IdsRunOut)
{
    Watched factory;
    auto const source = factory.Make(L"", 100);
    EXPECT_EQ(0xFFFFFFFE, factory.ObtainPropertyCollection(*source, 0xFFFFFFFE).GetId());
    for (unsigned int expected : { 1u, 2u, 3u })
    {
        ++ValueOf(*source, 1);
        EXPECT_EQ(expected, factory.ObtainPropertyCollection(*source, c_none).GetId());
    }
    factory.CleanUp([](auto& collection) { return collection.GetId() != 2; }, false, false);
    EXPECT_EQ(2u, factory.Obtain(L"", 500).GetId());
}
