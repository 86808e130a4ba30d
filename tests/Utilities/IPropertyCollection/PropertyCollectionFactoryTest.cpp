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

TEST(PropertyCollectionFactory, Names)
{
    Watched factory;
    factory.Obtain(L"a", 1);
    factory.Obtain(L"b", 2);
    factory.Take();
    EXPECT_THROW(factory.RenameTemplatePropertyCollection(L"", L"c"), EmptyTemplateNameException);
    EXPECT_THROW(factory.RenameTemplatePropertyCollection(L"x", L""), EmptyTemplateNameException);
    EXPECT_THROW(factory.RenameTemplatePropertyCollection(L"x", L"a"), IllegalTemplateNameException);
    EXPECT_THROW(factory.RenameTemplatePropertyCollection(L"x", L"c"), UnknownTemplateException);
    EXPECT_THROW(factory.ConvertIntoNonTemplatePropertyCollection(L""), EmptyTemplateNameException);
    EXPECT_THROW(factory.ConvertIntoNonTemplatePropertyCollection(L"x"), UnknownTemplateException);
    EXPECT_THROW(factory.ConvertIntoNonTemplatePropertyCollection(L"standard"), IllegalTemplateNameException);
    EXPECT_EQ("", factory.Take());
    try
    {
        factory.RenameTemplatePropertyCollection(L"a", L"a");
        ADD_FAILURE();
    }
    catch (IllegalTemplateNameException const& error)
    {
        EXPECT_EQ(L"a", error.GetTemplateName());
    }

    std::string names;
    factory.observer.hook = [&](char, PropertyCollection const* collection) { names += NameOf(*collection) + ' '; };
    factory.RenameTemplatePropertyCollection(L"a", L"c");
    factory.ConvertIntoNonTemplatePropertyCollection(L"b");
    factory.RenameTemplatePropertyCollection(L"standard", L"s");
    EXPECT_EQ("<1 >1 <2 >2 <0 >0 ", factory.Take());
    EXPECT_EQ("a c b  standard s ", names);
}

TEST(PropertyCollectionFactory, CleanUpAndReset)
{
    Watched factory;
    for (int index = 1; index <= 6; ++index)
        factory.Obtain(index == 3 ? L"t" : L"", 100 * index);
    factory.GetChangeablePropertyCollection(5).SetDeletable(false);
    factory.Take();
    std::string asked;
    factory.CleanUp(
        [&](PropertyCollection const& collection)
        {
            asked += std::to_string(collection.GetId());
            return collection.GetId() == 4;
        },
        true, false);
    EXPECT_EQ("1246", asked);
    EXPECT_EQ("-6 -2 -1 ", factory.Take());
    factory.Obtain(L"", 900);
    EXPECT_EQ("+7 ", factory.Take()); // numbers are not used again
    factory.RenameTemplatePropertyCollection(L"standard", L"s");
    ValueOf(factory.GetStdPropertyCollection(), 1) = 0;
    factory.Take();
    factory.Reset(true, false);
    EXPECT_EQ("-7 -4 ", factory.Take());
    EXPECT_EQ(0, ValueOf(factory.GetStdPropertyCollection(), 1));
    factory.Obtain(L"", 900);
    factory.GetChangeablePropertyCollection(0).SetIsOverriden(true);
    factory.Reset(false, true);
    EXPECT_EQ("+6 -6 -5 -3 ", factory.Take());
    EXPECT_EQ("1:10 2:20", Values(factory.GetStdPropertyCollection()));
    EXPECT_EQ(L"standard", factory.GetStdPropertyCollection().GetTemplateName());
    EXPECT_FALSE(factory.GetStdPropertyCollection().IsOverriden());
    EXPECT_EQ(1u, factory.Obtain(L"", 900).GetId());
}
