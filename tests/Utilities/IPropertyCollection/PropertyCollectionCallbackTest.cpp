// From inside each notification and each other callback, everything that a program may do there.

#include <HookedProperty.h>

using namespace Vek;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace
{

constexpr unsigned int c_none = PropertyCollection::c_no_id;

bool RemoveAll(PropertyCollection const&)
{
    return false;
}

/// A factory with collections, three observers, of which the first does what the test wants, and one to come.
struct Scene
{
    Scene() : factory({ 1, 2, 3 }, 1)
    {
        for (int index = 1; index <= 4; ++index)
            factory.Obtain(index == 2 ? L"t" : L"", 100 * index);
        for (auto* const observer : { &a, &b, &c })
            factory.RegisterObserver(*observer);
    }

    PropertyCollection const& Obtain(PropertyCollection const& source, unsigned int id = c_none)
    {
        PropertyCollection const& result = factory.ObtainPropertyCollection(source, id);
        EXPECT_EQ(&factory.GetPropertyCollection(result.GetId()), &result) << "the result is not registered";
        return result;
    }

    HookedFactory factory;
    HookedFactory other{ 1, 2, 3 };
    std::string trace;
    TracingObserver a{ trace, "A" }, b{ trace, "B" }, c{ trace, "C" }, d{ trace, "D" };
    PropertyCollection const* inNotification = nullptr;
};

/// An operation from which a callback comes; it calls `hook` if the callback is one that is passed in.
struct Place
{
    char const* name; // one character: a notification; else a hook of HookedProperty, or "passed"
    void (*run)(Scene& scene, std::function<void()> hook);
};

Place const g_places[] = {
    { "+", [](Scene& scene, auto) { scene.Obtain(*scene.factory.Make(L"", 900)); } },
    { "-", [](Scene& scene, auto) { scene.factory.CleanUp(RemoveAll, false, true); } },
    { "=", [](Scene& scene, auto) { scene.Obtain(*scene.factory.Make(L"", 900), 3); } },
    { "<", [](Scene& scene, auto) { scene.factory.RenameTemplatePropertyCollection(L"t", L"u"); } },
    { ">", [](Scene& scene, auto) { scene.factory.ConvertIntoNonTemplatePropertyCollection(L"t"); } },
    { "!", [](Scene& scene, auto) { scene.factory.NotifyFactoryChanged(); } },
    { "create", [](Scene& scene, auto) { scene.Obtain(*scene.other.Make(L"t", 900)); } },
    { "clone", [](Scene& scene, auto) { scene.Obtain(*scene.factory.Make(L"t", 900)); } },
    { "equal", [](Scene& scene, auto) { scene.Obtain(*scene.factory.Make(L"", 400)); } },
    { "default", [](Scene& scene, auto) { scene.factory.Reset(false, false); } },
    { "user text", [](Scene& scene, auto) { scene.factory.GetPropertyCollection(3u).GetUserText(1); } },
    { "destroy", [](Scene& scene, auto) { scene.factory.CleanUp(RemoveAll, false, true); } },
    { "passed",
      [](Scene& scene, auto hook) { scene.factory.CleanUp([=](auto&) { return hook(), false; }, false, true); } },
    { "passed", [](Scene& scene, auto hook) { scene.factory.ForEachPropertyCollection([=](auto&) { hook(); }, {}); } },
    { "passed", [](Scene& scene, auto hook)
      { scene.factory.ForEachPropertyCollection([](auto&) {}, [=](auto&) { return hook(), false; }); } },
    { "passed", [](Scene& scene, auto hook)
      { scene.factory.GetChangeablePropertyCollection(3).ForEachProperty([=](Property&) { hook(); }); } },
    { "passed", [](Scene& scene, auto hook) { scene.factory.ForEachObserver([=](auto&) { hook(); }); } },
};

struct Deed
{
    char const* name;
    void (*run)(Scene& scene);
};

Deed const g_deeds[] = {
    { "unregister self", [](Scene& scene) { scene.factory.UnregisterObserver(scene.a); } },
    { "unregister another", [](Scene& scene) { scene.factory.UnregisterObserver(scene.b); } },
    { "unregister all",
      [](Scene& scene)
      {
          for (auto* const observer : { &scene.a, &scene.b, &scene.c })
              scene.factory.UnregisterObserver(*observer);
      } },
    { "register", [](Scene& scene) { scene.factory.RegisterObserver(scene.d); } },
    { "obtain", [](Scene& scene) { scene.Obtain(*scene.factory.Make(L"", 700)); } },
    { "obtain by id", [](Scene& scene) { scene.Obtain(*scene.other.Make(L"", 800), 1); } },
    { "add a kind", [](Scene& scene) { PropertyCollectionFactoryAccess(scene.factory).AddStandardProperty(3); } },
    { "clean up", [](Scene& scene) { scene.factory.CleanUp(RemoveAll, false, true); } },
    { "reset", [](Scene& scene) { scene.factory.Reset(false, true); } },
    { "throw", [](Scene&) { throw std::runtime_error("refused"); } },
};

std::vector<std::string> Split(std::string const& trace)
{
    std::istringstream stream(trace);
    return { std::istream_iterator<std::string>(stream), {} };
}

/// What holds whatever happened: the standard collection is there, no two have one id, properties name their owner, no
/// kind is there twice, and an observer is told once of each that came and went.
void CheckRegistry(Scene& scene)
{
    std::set<unsigned int> ids;
    for (unsigned int index = 0; index < scene.factory.GetPropertyCollectionCount(); ++index)
    {
        PropertyCollection const& collection = scene.factory.GetChangeablePropertyCollectionByIndex(index);
        EXPECT_EQ(index == 0, collection.IsStdPropertyCollection());
        EXPECT_TRUE(ids.insert(collection.GetId()).second);
        EXPECT_EQ(&collection, &scene.factory.GetPropertyCollection(collection.GetId()));
        std::set<unsigned int> kinds;
        collection.ForEachProperty(
            [&](Property const& property)
            {
                EXPECT_EQ(&collection, &property.GetPropertyCollection());
                EXPECT_TRUE(kinds.insert(property.GetId()).second);
            });
    }
    std::set<std::string> gone;
    for (std::string const& event : Split(scene.trace))
        if (event[1] == '-')
        {
            EXPECT_TRUE(gone.insert(event).second) << "told twice: " << event;
        }
        else if (event[1] == '+')
            gone.erase(std::string(event).replace(1, 1, "-")); // Reset gives numbers again
}

/// What became of the observers: who left is told nothing more, who came nothing of what was being told.
void CheckObservers(std::string const& deed, std::string const& before, std::string const& during,
                    std::string const& after)
{
    std::string const current = during.empty() ? "" : during.substr(1);
    for (std::string const& event : Split(after))
    {
        if (deed == "unregister self" || deed == "unregister all")
        {
            EXPECT_NE('A', event[0]);
        }
        if (deed == "unregister another" || deed == "unregister all")
        {
            EXPECT_NE('B', event[0]);
        }
        EXPECT_TRUE(deed != "unregister all") << event;
        EXPECT_TRUE(event[0] != 'D' || event.substr(1) != current) << "told " << event << " before it came";
    }
    bool const isTold = (" " + after).find(" C" + current + ' ') != std::string::npos;
    if (!current.empty() && deed != "unregister all" && deed != "throw")
    {
        EXPECT_TRUE(isTold) << "the others are not told any more: " << before << '|' << after;
    }
}

} // namespace

TEST(PropertyCollectionCallbacks, EveryDeedFromEveryPlace)
{
    for (Place const& place : g_places)
        for (Deed const& deed : g_deeds)
        {
            if (std::string(place.name) == "destroy" && std::string(deed.name) == "throw")
                continue; // no destructor may
            SCOPED_TRACE(std::string(place.name) + ": " + deed.name);
            Scene scene;
            std::size_t mark = std::string::npos;
            auto const once = [&]
            {
                if (mark != std::string::npos)
                    return;
                mark = scene.trace.size();
                deed.run(scene);
            };
            bool const isNotification = std::string(place.name).size() == 1;
            if (isNotification)
                scene.a.hook = [&](char what, PropertyCollection const*)
                {
                    if (what == place.name[0])
                        once();
                };
            else
                g_hooks[place.name] = once;
            bool const hasThrown = MessageOf<std::runtime_error>([&] { place.run(scene, once); }) == "refused";
            g_hooks.clear();
            ASSERT_NE(std::string::npos, mark) << "the callback did not come";
            EXPECT_EQ(std::string(deed.name) == "throw", hasThrown);
            CheckRegistry(scene);
            std::string const before = scene.trace.substr(0, mark);
            CheckObservers(deed.name, before, isNotification ? Split(before).back() : "", scene.trace.substr(mark));
        }
}

// What is being removed is not handed out; whoever asks for it is told.
TEST(PropertyCollectionCallbacks, WhatIsBeingRemovedIsNotHandedOut)
{
    Scene scene;
    scene.a.hook = [&](char, PropertyCollection const* leaving)
    {
        PropertyCollection const copy(*leaving);
        EXPECT_THROW(scene.factory.ObtainPropertyCollection(copy, c_none), InvalidStateException);
        EXPECT_THROW(scene.factory.ObtainPropertyCollection(copy, leaving->GetId()), InvalidStateException);
    };
    scene.factory.CleanUp(RemoveAll, false, false);
    EXPECT_EQ(1u, scene.factory.GetPropertyCollectionCount());
}

// A throwing BeforeDelete leaves its collection and those before it; they can be removed later.
TEST(PropertyCollectionCallbacks, RemovalThatThrowsMidway)
{
    Scene scene;
    scene.a.hook = [](char, PropertyCollection const* leaving)
    {
        if (leaving->GetId() == 2)
            throw std::runtime_error("refused");
    };
    EXPECT_THROW(scene.factory.CleanUp(RemoveAll, false, false), std::runtime_error);
    EXPECT_EQ("A-4 B-4 C-4 A-3 B-3 C-3 A-2 ", std::exchange(scene.trace, {}));
    EXPECT_EQ(3u, scene.factory.GetPropertyCollectionCount());
    scene.a.hook = {};
    scene.factory.CleanUp(RemoveAll, false, false);
    EXPECT_EQ("A-2 B-2 C-2 A-1 B-1 C-1 ", scene.trace);
}

// A walk goes on with what it began with, as far as it is still there.
TEST(PropertyCollectionCallbacks, WalksVisitWhatWasThereAndStillIs)
{
    Scene scene;
    std::string visited;
    scene.factory.ForEachPropertyCollection(
        [&](PropertyCollection const& collection)
        {
            visited += std::to_string(collection.GetId());
            scene.factory.CleanUp([](auto& other) { return other.GetId() != 2; }, false, true);
            scene.Obtain(*scene.factory.Make(L"", 5000 + collection.GetId() * 10));
        },
        [](PropertyCollection const& collection) { return collection.GetId() == 3; });
    EXPECT_EQ("014", visited);
    // A collection that lets itself go while its properties are walked.
    std::unique_ptr<PropertyCollection> own = scene.factory.Make();
    int properties = 0;
    own->ForEachProperty([&](Property&) { own.reset(), ++properties; });
    EXPECT_EQ(2, properties);
}
