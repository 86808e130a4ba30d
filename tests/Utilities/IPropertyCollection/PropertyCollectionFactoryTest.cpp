#include <HookedProperty.h>

#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

using namespace Vek;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

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

    struct Wrong : HookedKind
    {
        using HookedKind::HookedKind;
        std::shared_ptr<Property> CreateProperty() const override
        {
            static HookedKind const one(1);
            return one.CreateProperty();
        }
    };
    auto broken = std::make_unique<HookedKind>(4);
    broken->isBroken = true;
    access.AddPropertyInfo(std::move(broken));
    access.AddPropertyInfo(std::make_unique<Wrong>(5));
    EXPECT_THROW(access.AddStandardProperty(4), InvalidStateException);
    EXPECT_THROW(access.AddStandardProperty(5), InvalidStateException);
    EXPECT_EQ("1:5 2:20", Values(other));
    std::string ids;
    access.ForEachPropertyInfo([&](PropertyInfo const& info) { ids += std::to_string(info.GetId()); });
    EXPECT_EQ("1245", ids);
}

TEST(PropertyCollectionFactory, Lookups)
{
    HookedFactory factory({ 1 });
    EXPECT_EQ(&factory.GetStdPropertyCollection(), &factory.GetPropertyCollection(L"standard"));
    EXPECT_FALSE(factory.ExistsTemplate(L""));
    factory.Obtain(L"", 5);
    EXPECT_TRUE(factory.ExistsTemplate(L""));
    EXPECT_FALSE(factory.ExistsTemplate(L"Standard"));
    EXPECT_EQ("invalid vector subscript",
              MessageOf<std::out_of_range>([&] { factory.GetChangeablePropertyCollectionByIndex(2); }));
    EXPECT_THROW(factory.GetPropertyCollection(2u), IllegalPropertyCollectionIdException);
    EXPECT_THROW(factory.GetPropertyCollection(L""), EmptyTemplateNameException);
    EXPECT_THROW(factory.GetChangeableTemplatePropertyCollection(L"x"), UnknownTemplateException);
    EXPECT_THROW(factory.AssignTemplatePropertyCollection(*factory.Make()), EmptyTemplateNameException);
    factory.AssignTemplatePropertyCollection(*factory.Make(L"t", 8));
    EXPECT_EQ("1:8", Values(factory.GetPropertyCollection(L"t")));
    EXPECT_THROW(factory.ForEachPropertyCollection({}, {}), std::bad_function_call);
    EXPECT_THROW(factory.CleanUp({}, false, false), std::bad_function_call);
}

TEST(PropertyCollectionFactory, IdsRunOut)
{
    HookedFactory factory({ 1, 2 });
    EXPECT_EQ(0xFFFFFFFE, factory.ObtainPropertyCollection(*factory.Make(L"", 100), 0xFFFFFFFE).GetId());
    for (unsigned int expected : { 1u, 2u, 3u })
        EXPECT_EQ(expected, factory.Obtain(L"", 100 + static_cast<int>(expected)).GetId());
    factory.CleanUp([](auto& collection) { return collection.GetId() != 2; }, false, false);
    EXPECT_EQ(2u, factory.Obtain(L"", 500).GetId());
}
