#include <HookedProperty.h>

#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

using namespace Vek;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

TEST(PropertyCollectionExceptions, TextsAndValues)
{
    EXPECT_STREQ("Illegal format id!", IllegalPropertyCollectionIdException(42).what());
    EXPECT_EQ(42u, IllegalPropertyCollectionIdException(42).GetId());
    EXPECT_STREQ("Illegal type! (abc)", IllegalTypeException("abc").what());
    EXPECT_EQ("abc", IllegalTypeException("abc").GetType());
    EXPECT_STREQ("Illegal value! (\344)", IllegalValueException(L"\u00e4").what());
    EXPECT_EQ(L"\u00e4", IllegalValueException(L"\u00e4").GetValue());
    EXPECT_STREQ("Property collection cannot be modified because it is overridden.",
                 PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException().what());
    EXPECT_THROW(throw IllegalTemplateNameException(L"x"), UserException);
}

TEST(PropertyCollection, CopiesAndUnknownKinds)
{
    HookedFactory factory({ 1, 2, 3 });
    HookedFactory other({ 1, 2 });
    auto const source = factory.Make(L"t", 1);
    source->SetIsOverriden(true);
    source->SetDeletable(false);
    PropertyCollection const copy(*source);
    EXPECT_FALSE(copy.IsOverriden());
    EXPECT_TRUE(copy.IsDeletable());
    EXPECT_EQ(L"t", copy.GetTemplateName());

    EXPECT_THROW(other.ObtainPropertyCollection(copy, 0), IllegalPropertyCollectionIdException);
    EXPECT_EQ("1:10 2:20", Values(other.GetStdPropertyCollection()));
    EXPECT_EQ(L"standard", other.GetStdPropertyCollection().GetTemplateName());
}

TEST(PropertyCollection, ComparisonIsOneSidedAndLooksAtIdsAndNames)
{
    HookedFactory factory({ 1, 2 });
    HookedFactory empty({});
    auto const a = factory.Make(L"t", 1);
    EXPECT_TRUE(a->ArePropertiesEqual(*empty.Create()));
    EXPECT_FALSE(empty.Create()->ArePropertiesEqual(*a)); // what is absent is not equal

    PropertyCollection const& five = factory.ObtainPropertyCollection(*a, 5);
    PropertyCollection const& seven = factory.ObtainPropertyCollection(*factory.Make(L"x", 1), 7);
    EXPECT_TRUE(*a == five); // an unregistered one matches any id
    EXPECT_FALSE(*a == seven);
    factory.GetChangeablePropertyCollection(7).SetTemplateName(L"t");
    EXPECT_FALSE(five == seven);
    EXPECT_TRUE(*a == seven);
    ValueOf(*a, 2) = 0;
    EXPECT_FALSE(*a == seven);
}

TEST(PropertyCollection, AbsentIdsAndLostCollectionsAreTold)
{
    std::shared_ptr<Property> kept;
    {
        HookedFactory factory({ 1 });
        EXPECT_EQ(L"10", factory.GetStdPropertyCollection().GetUserText(1));
        EXPECT_THROW(factory.GetStdPropertyCollection().GetProperty(2), IllegalPropertyCollectionIdException);
        EXPECT_THROW(factory.GetStdPropertyCollection().GetUserText(2), IllegalPropertyCollectionIdException);
        kept = HookedKind(1).CreateProperty();
        EXPECT_THROW(kept->GetPropertyCollection(), InvalidStateException);

        struct Keeping : HookedKind
        {
            explicit Keeping(std::shared_ptr<Property> given) : HookedKind(3), property(std::move(given)) {}
            std::shared_ptr<Property> CreateProperty() const override { return property; }
            std::shared_ptr<Property> property;
        };
        static HookedKind const kind(3);
        kept = kind.CreateProperty();
        PropertyCollectionFactoryAccess access(factory);
        access.AddPropertyInfo(std::make_unique<Keeping>(kept));
        access.AddStandardProperty(3);
        EXPECT_TRUE(kept->GetPropertyCollection().IsStdPropertyCollection());
        EXPECT_THROW(factory.Create(), InvalidStateException); // the one property cannot be in two collections
        EXPECT_THROW(*kept = factory.GetStdPropertyCollection().GetProperty(1), ArgumentException);
    }
    EXPECT_THROW(kept->GetPropertyCollection(), InvalidStateException);
}

// Whichever call of a kind or a property throws, the collection is as before, whether the property was there or not.
TEST(PropertyCollection, AssignmentThatThrowsChangesNothing)
{
    for (std::string const hook : { "clone", "create" })
        for (int failing = 1;; ++failing)
        {
            SCOPED_TRACE(hook + std::to_string(failing));
            HookedFactory factory({ 1, 2, 3, 5 });
            HookedFactory other({ 1, 3, 2, 5 }, 1);
            std::string trace;
            TracingObserver observer(trace);
            PropertyCollection const& target = other.ObtainPropertyCollection(*other.Make(L"t", 7), 3);
            other.RegisterObserver(observer);
            auto const source = factory.Make(L"new", 100);

            int calls = 0;
            g_hooks[hook] = [&]
            {
                if (++calls == failing)
                    throw std::runtime_error("refused");
            };
            bool const hasThrown =
                MessageOf<std::runtime_error>([&] { other.ObtainPropertyCollection(*source, 3); }) == "refused";
            g_hooks.clear();
            EXPECT_EQ(hasThrown ? "1:7 3:8 2:9" : "1:100 3:102 2:101 5:103", Values(target));
            EXPECT_EQ(hasThrown ? L"t" : L"new", target.GetTemplateName());
            EXPECT_EQ(hasThrown ? "" : "=3 ", trace);
            if (!hasThrown)
                break;
            ASSERT_LT(failing, 50);
        }
}
