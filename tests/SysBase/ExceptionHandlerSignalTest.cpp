#include <SysBase/ExceptionHandler.h>
#include <SysBase/Faults.h>

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <thread>

#include <pthread.h>
#include <signal.h>
#include <unistd.h>

// What ExecuteSafe does to the signals of the process. Each death test runs in a process of its own, in which the guard
// has not been used before.
namespace
{

using VekSysBase::ExceptionHandler;

constexpr int c_hostHandled = 42;

bool Execute(std::function<void()> const& action)
{
    return ExceptionHandler::ExecuteSafe(action, L"", L"", L"");
}

void Handle(int signal, void (*handler)(int), int flags = 0)
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    if (sigaction(signal, &action, nullptr) != 0)
        std::abort();
}

void ExitAsHandled(int)
{
    _exit(c_hostHandled);
}

// Uses the guard, then leaves it: what follows is outside.
void UseGuard()
{
    if (Execute(Faults::WriteNull) || Execute(Faults::DivideByZero))
        _exit(1);
}

[[gnu::noinline]] int OverflowStack(int depth)
{
    char volatile frame[1000] = {};
    frame[depth % 1000] = 1;
    return depth < INT_MAX ? OverflowStack(depth + 1) + frame[0] : 0;
}

class ExceptionHandlerDeathTest : public testing::Test
{
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

} // namespace

TEST(ExceptionHandlerSignals, StackOverflowIsCaughtAgainAndAgain)
{
    auto const overflow = [] { Faults::g_result = OverflowStack(0); };
    auto const twice = [&] { return !Execute(overflow) && !Execute(overflow); };
    EXPECT_TRUE(twice());
    std::thread([&] { EXPECT_TRUE(twice()); }).join();
}

TEST(ExceptionHandlerSignals, BlockedSignalsDoNotMakeAFaultDeadly)
{
    sigset_t all;
    sigset_t before;
    sigset_t after;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    EXPECT_FALSE(Execute(Faults::DivideByZero));
    pthread_sigmask(SIG_SETMASK, &before, &after);
    for (int const signal : { SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGUSR1 })
        EXPECT_EQ(1, sigismember(&after, signal)) << signal;
}

TEST_F(ExceptionHandlerDeathTest, FaultOutsideKillsWithItsSignal)
{
    for (int const signal : { SIGSEGV, SIGFPE, SIGTRAP })
    {
        auto const die = [signal]
        {
            Handle(signal, SIG_DFL);
            UseGuard();
            raise(signal);
        };
        EXPECT_EXIT(die(), testing::KilledBySignal(signal), "");
    }
    auto const fault = []
    {
        Handle(SIGSEGV, SIG_IGN); // which the system does not grant for a real fault
        UseGuard();
        Faults::WriteNull();
    };
    EXPECT_EXIT(fault(), testing::KilledBySignal(SIGSEGV), "");
}

TEST_F(ExceptionHandlerDeathTest, HandlerFromBeforeGetsWhatNoGuardTakes)
{
    auto const outside = []
    {
        Handle(SIGSEGV, ExitAsHandled);
        UseGuard();
        Faults::WriteNull();
    };
    EXPECT_EXIT(outside(), testing::ExitedWithCode(c_hostHandled), "");

    auto const otherThread = []
    {
        Handle(SIGSEGV, ExitAsHandled);
        UseGuard();
        Execute([] { std::thread(Faults::WriteNull).join(); });
    };
    EXPECT_EXIT(otherThread(), testing::ExitedWithCode(c_hostHandled), "") << "a guard of another thread";

    auto const sentInside = []
    {
        Handle(SIGSEGV, ExitAsHandled);
        Execute([] { kill(getpid(), SIGSEGV); });
    };
    EXPECT_EXIT(sentInside(), testing::ExitedWithCode(c_hostHandled), "")
        << "sent to the program, no fault of the action";

    auto const once = []
    {
        Handle(
            SIGSEGV, [](int) {}, static_cast<int>(SA_RESETHAND));
        UseGuard();
        Faults::WriteNull(); // handled once without effect, then deadly
    };
    EXPECT_EXIT(once(), testing::KilledBySignal(SIGSEGV), "");

    auto const ignored = []
    {
        Handle(SIGTRAP, SIG_IGN);
        UseGuard();
        raise(SIGTRAP);
        _exit(0);
    };
    EXPECT_EXIT(ignored(), testing::ExitedWithCode(0), "");
}

TEST_F(ExceptionHandlerDeathTest, LeavingThreadPassesThroughAndTakesItsGuardAlong)
{
    struct FaultsBehindTheGuard
    {
        ~FaultsBehindTheGuard() { raise(SIGTRAP); }
    };
    auto const leave = []
    {
        Handle(SIGTRAP, ExitAsHandled);
        std::thread(
            []
            {
                FaultsBehindTheGuard const last;
                Execute([] { Execute([] { pthread_exit(nullptr); }); });
            })
            .join();
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(c_hostHandled), "");

    std::atomic<bool> isPassed = false;
    std::thread cancelled(
        [&]
        {
            Execute(
                []
                {
                    for (;;)
                        sleep(1);
                });
            isPassed = true;
        });
    pthread_cancel(cancelled.native_handle());
    cancelled.join();
    EXPECT_FALSE(isPassed);
}
