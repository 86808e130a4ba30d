#include <Exceptions/InvalidStateException.h>
#include <Utilities/Event.h>
#include <Utilities/Nullable.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace Vek::Framework::Utilities;

TEST(Nullable, HoldsTypesWithoutDefaultConstructor)
{
    struct NoDefault
    {
        explicit NoDefault(int number) : value(number) {}
        bool operator==(NoDefault const&) const = default;
        int value;
    };
    Nullable<NoDefault> nullable;
    EXPECT_FALSE(nullable.HasValue());
    EXPECT_THROW(nullable.GetValue(), Vek::InvalidStateException);
    EXPECT_TRUE(nullable == Nullable<NoDefault>());
    nullable = NoDefault(3);
    EXPECT_EQ(3, nullable.GetValue().value);
    EXPECT_TRUE(nullable == NoDefault(3) && nullable != NoDefault(4) && nullable != Nullable<NoDefault>());
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
    EXPECT_EQ("100 last7 last1", trace);
    trace.clear();
    event.Raise(2);
    EXPECT_EQ(" last2 late2 late2", trace);
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
