#include <HookedProperty.h>

#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionObtainer.h>

using namespace Vek;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace
{

auto Tracer(std::string& trace)
{
    return [&trace](PropertyCollection const& collection) { trace += std::to_string(collection.GetId()) + ' '; };
}

bool RemoveAll(PropertyCollection const&)
{
    return false;
}

} // namespace

TEST(PropertyCollectionObtainer, TellsRealChangesOnly)
{
    HookedFactory factory({ 1, 2 });
    PropertyCollectionObtainer obtainer(factory);
    std::string trace;
    obtainer.GetChangedEvent().Add(Tracer(trace));
    EXPECT_TRUE(obtainer.GetPropertyCollection().IsStdPropertyCollection());

    PropertyCollection edited = obtainer.GetChangeablePropertyCollection();
    EXPECT_EQ(PropertyCollection::c_no_id, edited.GetId());
    EXPECT_EQ(L"", edited.GetTemplateName());
    obtainer.AssignPropertyCollection(edited); // unmodified
    EXPECT_EQ("", trace);
    ValueOf(edited, 1) = 1;
    obtainer.AssignPropertyCollection(edited);
    obtainer.AssignPropertyCollection(edited);
    EXPECT_EQ("1 ", trace);
    factory.Obtain(L"t", 5);
    obtainer.AssignPropertyCollection(2);
    EXPECT_EQ("1 2 ", trace);
    EXPECT_THROW(obtainer.AssignPropertyCollection(9), IllegalPropertyCollectionIdException);

    PropertyCollectionObtainer second(factory);
    second.GetChangedEvent().Add(Tracer(trace));
    second = obtainer;
    second = obtainer;
    EXPECT_EQ("1 2 2 ", trace);
    HookedFactory other({});
    PropertyCollectionObtainer foreign(other);
    EXPECT_THROW(second = foreign, ArgumentException);
}

TEST(PropertyCollectionObtainer, FallsBackWhenItsCollectionGoes)
{
    HookedFactory factory({ 1 });
    std::string trace;
    std::optional<PropertyCollectionObtainer> first(factory), second(factory), third(factory);
    for (auto* const obtainer : { &first, &second, &third })
    {
        (*obtainer)->AssignPropertyCollection(*factory.Make(L"", 1));
        (*obtainer)->GetChangedEvent().Add(Tracer(trace));
    }
    // One of the handlers changes the second obtainer, which then tells nothing of the fall-back, and throws.
    first->GetChangedEvent().Add([&](auto&) { second->AssignPropertyCollection(*factory.Make(L"", 2)); });
    second->GetChangedEvent().Add([&](auto&) { throw std::runtime_error("refused"); });
    EXPECT_THROW(factory.CleanUp(RemoveAll, true, true), std::runtime_error);
    EXPECT_EQ("0 2 ", trace);
    EXPECT_EQ(2u, second->GetPropertyCollection().GetId());
    EXPECT_EQ(0u, third->GetPropertyCollection().GetId());

    trace.clear();
    third->AssignPropertyCollection(*factory.Make(L"", 3));
    first.reset();
    second.reset();
    factory.CleanUp(RemoveAll, true, true);
    EXPECT_EQ("3 0 ", trace);
}

TEST(PropertyCollectionObtainer, HandlerThatRemovesAndEndOfFactory)
{
    std::optional<HookedFactory> factory(std::in_place, std::initializer_list<unsigned int>{ 1 });
    PropertyCollectionObtainer obtainer(*factory);
    std::string trace;
    // The clean-up passes over the collection of which the handlers are being told.
    obtainer.GetChangedEvent().Add([&](auto&) { factory->CleanUp(RemoveAll, false, true); });
    obtainer.GetChangedEvent().Add(Tracer(trace));
    obtainer.AssignPropertyCollection(*factory->Make(L"", 1));
    EXPECT_EQ("1 ", trace);
    EXPECT_EQ(2u, factory->GetPropertyCollectionCount());

    PropertyCollection const edited = *factory->Make();
    factory.reset();
    EXPECT_THROW(obtainer.GetPropertyCollection(), InvalidStateException);
    EXPECT_THROW(obtainer.GetChangeablePropertyCollection(), InvalidStateException);
    EXPECT_THROW(obtainer.AssignPropertyCollection(1), InvalidStateException);
}
