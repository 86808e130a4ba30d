#include <ICommandProcessor/CommandHistory.h>
#include <ICommandProcessor/CommandSupplier.h>

using namespace Vek;
using namespace Vek::Framework::ICommandProcessor::Native;

namespace
{

/// Counts its state up and down.
struct Counter : CommandSupplier
{
    explicit Counter(CommandHistory& history) { history.Attach(*this); }
    int state = 0;
    std::function<void()> hook;

protected:
    void RestoreNewState() override { Move(1); }
    void RestoreOldState() override { Move(-1); }

private:
    void Move(int by)
    {
        if (auto const called = hook)
            called();
        state += by;
    }
};

} // namespace

// Against the plain picture: a list of states and a place in it.
TEST(CommandHistory, RandomStepsAgreeWithAListOfStates)
{
    constexpr std::size_t c_most = 5;
    for (unsigned int seed = 1; seed <= 200; ++seed)
    {
        std::mt19937 random(seed);
        CommandHistory history(c_most);
        Counter a(history), b(history);
        std::vector<std::pair<int, int>> states{ { 0, 0 } }; // of a and b
        std::size_t at = 0, saved = 0;                       // saved: states.size() when there is no way back
        constexpr std::size_t c_never = 1000;
        for (int step = 0; step < 100; ++step)
        {
            auto const operation = random() % 5;
            if (operation <= 1)
            {
                bool const isBoth = random() % 2 == 0;
                ++a.state;
                b.state += isBoth ? 1 : 0;
                history.AddStep(isBoth ? L"both" : L"one",
                                isBoth ? std::vector<CommandSupplier*>{ &a, &b } : std::vector<CommandSupplier*>{ &a });
                states.resize(at + 1);
                saved = saved != c_never && saved > at ? c_never : saved;
                states.emplace_back(a.state, b.state);
                ++at;
                if (states.size() > c_most + 1)
                {
                    states.erase(states.begin());
                    --at;
                    saved = saved == 0 || saved == c_never ? c_never : saved - 1;
                }
            }
            else if (operation == 2 && history.CanUndo())
            {
                history.Undo();
                --at;
            }
            else if (operation == 3 && history.CanRedo())
            {
                history.Redo();
                ++at;
            }
            else if (operation == 4 && random() % 4 == 0)
            {
                history.MarkSaved();
                saved = at;
            }
            ASSERT_EQ(states[at], std::pair(a.state, b.state)) << "seed " << seed;
            ASSERT_EQ(at, history.GetUndoCount());
            ASSERT_EQ(states.size() - 1 - at, history.GetRedoCount());
            ASSERT_EQ(saved == at, history.IsSaved()) << "seed " << seed;
            for (std::size_t distance = 0; distance < at; ++distance)
                ASSERT_EQ(states[at - distance].second != states[at - distance - 1].second ? L"both" : L"one",
                          history.GetUndoText(distance));
        }
    }
}

TEST(CommandHistory, RestoreThatThrowsTakesBackWhatWasDone)
{
    CommandHistory history;
    Counter a(history), b(history), c(history);
    history.AddStep(L"step", { &a, &b, &c });
    b.hook = [] { throw std::runtime_error("refused"); };
    EXPECT_THROW(history.Undo(), std::runtime_error);
    EXPECT_EQ(0, c.state);
    EXPECT_EQ(1u, history.GetUndoCount());
    b.hook = {};
    history.Undo();
    b.hook = [] { throw std::runtime_error("refused"); };
    EXPECT_THROW(history.Redo(), std::runtime_error);
    EXPECT_EQ(-1, a.state);
    EXPECT_EQ(1u, history.GetRedoCount());
}

TEST(CommandHistory, MisuseIsTold)
{
    EXPECT_THROW(CommandHistory(0), ArgumentException);
    CommandHistory history, other;
    Counter a(history), foreign(other);
    EXPECT_THROW(history.Undo(), InvalidStateException);
    EXPECT_THROW(history.Redo(), InvalidStateException);
    EXPECT_THROW(history.GetUndoText(), InvalidStateException);
    EXPECT_THROW(history.GetRedoText(), InvalidStateException);
    EXPECT_THROW(history.Attach(foreign), ArgumentException);
    std::vector<CommandSupplier*> const refused[] = { {}, { nullptr }, { &foreign }, { &a, &a } };
    for (auto const& suppliers : refused)
        EXPECT_THROW(history.AddStep(L"", suppliers), ArgumentException);

    history.AddStep(L"step", { &a });
    a.hook = [&]
    {
        other.Detach(foreign);
        EXPECT_THROW(history.Undo(), InvalidStateException);
        EXPECT_THROW(history.Redo(), InvalidStateException);
        EXPECT_THROW(history.AddStep(L"", { &a }), InvalidStateException);
        EXPECT_THROW(history.MarkSaved(), InvalidStateException);
        EXPECT_THROW(history.Clear(), InvalidStateException);
        EXPECT_THROW(history.Attach(foreign), InvalidStateException);
    };
    history.Undo();
    EXPECT_EQ(-1, a.state);
}

TEST(CommandHistory, SuppliersMayLeaveAtAnyTime)
{
    auto history = std::make_unique<CommandHistory>();
    Counter stays(*history);
    auto leaves = std::make_unique<Counter>(*history);
    history->AddStep(L"a", { &stays });
    history->AddStep(L"b", { leaves.get() });
    history->AddStep(L"c", { leaves.get(), &stays });
    stays.hook = [&] { leaves.reset(); }; // in the middle of a step, before its own turn
    history->Undo();
    EXPECT_EQ(-1, stays.state);
    EXPECT_EQ(1u, history->GetUndoCount()); // only with the one that left: gone
    EXPECT_EQ(L"a", history->GetUndoText());
    EXPECT_EQ(L"c", history->GetRedoText());
    history->Clear();
    EXPECT_FALSE(history->IsSaved());
    history.reset();
    EXPECT_THROW(stays.GetCommandController(), InvalidStateException);
}
