#include <Exceptions/NotImplementedException.h>
#include <ICommandProcessor/CommandCreatorRegistry.h>
#include <ICommandProcessor/CommandSupplier.h>
#include <ICommandProcessor/LambdaCommandCreator.h>

using namespace Vek;
using namespace Vek::Framework::ICommandProcessor::Native;

namespace
{

struct Print : Command
{
    Print() : Command(5) {}
    CommandResult Execute() override { return CommandResult::Error(L"out of paper"); }
};

} // namespace

TEST(CommandCreatorRegistry, FirstNumberAndFirstNameStay)
{
    int id = -1;
    CommandCreatorRegistry registry;
    auto const create = [] { return std::make_unique<Print>(); };
    EXPECT_TRUE(registry.RegisterCommandCreator(std::make_unique<LambdaCommandCreator>(5, "print", create)));
    EXPECT_FALSE(registry.RegisterCommandCreator(std::make_unique<LambdaCommandCreator>(5, "other", create)));
    EXPECT_FALSE(registry.TryFindCommandId("other", id));
    for (int other = 100; other > 6; --other)
        registry.RegisterCommandCreator(std::make_unique<LambdaCommandCreator>(other, "print", create));
    EXPECT_FALSE(registry.TryFindCommandId("Print", id));
    EXPECT_EQ(-1, id);
    EXPECT_TRUE(registry.TryFindCommandId("print", id));
    EXPECT_EQ(5, id);
    EXPECT_THROW(registry.RegisterCommandCreator(nullptr), ArgumentException);
    EXPECT_EQ("invalid unordered_map<K, T> key", MessageOf<std::out_of_range>([&] { registry.GetCommandCreator(6); }));
    CommandResult const result = registry.GetCommandCreator(id)()->Execute();
    EXPECT_FALSE(result.IsSuccess());
    EXPECT_EQ(L"out of paper", result.GetErrorMessage());
}

TEST(Command, WhatIsNotOverriddenIsToldSo)
{
    struct Plain : Command
    {
        Plain() : Command(1) {}
    };
    struct Supplier : CommandSupplier
    {
        using CommandSupplier::RestoreNewState;
        using CommandSupplier::RestoreOldState;
    };
    EXPECT_THROW(Plain().Execute(), NotImplementedException);
    EXPECT_THROW(Supplier().RestoreNewState(), NotImplementedException);
    EXPECT_THROW(Supplier().RestoreOldState(), NotImplementedException);
    EXPECT_THROW(Supplier().GetCommandController(), InvalidStateException);
    EXPECT_THROW(LambdaCommandCreator(1, "", {})(), std::bad_function_call);
    EXPECT_TRUE(CommandResult::Success().IsSuccess());
}
