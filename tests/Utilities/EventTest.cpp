#include <Utilities/Event.h>
#include <Utilities/Nullable.h>

using namespace Vek::Framework::Utilities;

TEST(Nullable, KeepsTheFlagThenAValueWithoutDefaultConstructor)
{
    struct Number
    {
        explicit Number(int number) : value(number) {}
        bool operator==(Number const&) const = default;
        int value;
    };
    struct Layout
    {
        bool hasValue;
        int value;
    };
    static_assert(sizeof(Layout) == sizeof(Nullable<Number>) && std::is_trivially_copyable_v<Nullable<Number>>);
    Nullable<Number> nullable;
    EXPECT_THROW(nullable.GetValue(), Vek::InvalidStateException);
    EXPECT_TRUE(nullable == Nullable<Number>());
    nullable = Number(3);
    EXPECT_TRUE(nullable == Number(3) && nullable != Number(4) && nullable != Nullable<Number>());
    EXPECT_EQ(3, reinterpret_cast<Layout const&>(nullable).value);
    EXPECT_TRUE(reinterpret_cast<bool const&>(nullable));
    Nullable<long long> const converted = 5; // what makes the value makes the Nullable
    EXPECT_EQ(5, converted.GetValue());
    EXPECT_FALSE(Nullable<std::string>(std::string("a")) == Nullable<std::string>(std::string("b")));
}

TEST(Nullable, CopiesAndMovesWhatItHolds)
{
    using Shared = std::shared_ptr<int>;
    Shared const value = std::make_shared<int>(1);
    Nullable<Shared> first = value;
    Nullable<Shared> second = first;
    EXPECT_EQ(3, value.use_count());
    Nullable<Shared> third = std::move(second);
    second = Nullable<Shared>(value);
    second = std::as_const(second);
    EXPECT_EQ(4, value.use_count());
    first = Nullable<Shared>();
    third = first;
    EXPECT_TRUE(first == third && third != second);
    EXPECT_EQ(2, value.use_count());

    Nullable<std::unique_ptr<int>> owner = std::make_unique<int>(2);
    Nullable<std::unique_ptr<int>> next = std::move(owner);
    owner = std::move(next);
    EXPECT_EQ(2, *owner.GetValue());
    static_assert(!std::is_copy_constructible_v<Nullable<std::unique_ptr<int>>>);
}

TEST(Event, HandlersMayChangeTheListWhileItIsRaised)
{
    Event<int> const event;
    std::string trace;
    auto const note = [&](char const* name) { return [&trace, name](int i) { trace += name + std::to_string(i); }; };
    Event<int>::Token self{};
    self = event.Add(
        [&, captured = std::string(100, 'x')](int)
        {
            EXPECT_TRUE(event.Remove(self));
            EXPECT_FALSE(event.Remove(self));
            trace += std::to_string(captured.size());
        });
    Event<int>::Token next{};
    event.Add(
        [&](int i)
        {
            event.Remove(next);
            if (i == 1)
                event.Raise(7);
            event.Add(note(" late"));
        });
    next = event.Add(note(" next"));
    event.Add(note(" last"));
    event.Raise(1);
    EXPECT_EQ("100 last7 late7 last1 late1 late1", trace);
    trace.clear();
    event.Raise(2);
    EXPECT_EQ(" last2 late2 late2 late2", trace);
}

TEST(Event, WhatTheLastHandlerAddsWaitsForTheNextRaise)
{
    Event<int> const event;
    int calls = 0;
    Event<int>::Token behind{};
    event.Add([&](int) { event.Remove(behind); });
    event.Add([&](int) { event.Add([&](int) { ++calls; }); });
    behind = event.Add([](int) {}); // removed before the handler in front of it runs, which is the last one then
    event.Raise(0);
    EXPECT_EQ(0, calls);
    event.Raise(0);
    EXPECT_EQ(2, calls);
}

TEST(Event, AnExceptionEndsTheRaiseAndLeavesTheEventUsable)
{
    Event<std::string const&> const event;
    std::string trace;
    auto const thrower = event.Add(
        [&](std::string const&)
        {
            event.Remove(Event<std::string const&>::Token{ 1 });
            throw std::runtime_error("handler");
        });
    event.Add([&](std::string const& text) { trace += text; });
    EXPECT_THROW(event.Raise("a"), std::runtime_error);
    EXPECT_FALSE(event.Remove(thrower));
    event.Raise("b");
    EXPECT_EQ("b", trace);
}
