#include <SysBase/ExceptionHandler.h>
#include <SysBase/Faults.h>

#include <pthread.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
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
    sigaction(signal, &action, nullptr);
}

void ExitAsHandled(int)
{
    _exit(c_hostHandled);
}

// As a crash handler that formats its report in local arrays.
FAULTS_ON_PURPOSE void ExitAfterMuchWork(int)
{
    char volatile report[900 * 1024];
    for (std::size_t at = sizeof report; at != 0; at -= 1024)
        report[at - 1] = 1;
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

TEST_F(ExceptionHandlerDeathTest, WhatNoGuardTakesIsForTheHandlerFromBefore)
{
    // Why, signal, its handler and flags, action, code of the exit: 0 when the signal kills.
    Rows<char const*, int, void (*)(int), int, void (*)(), int> const rows = {
        { "none", SIGSEGV, SIG_DFL, 0, [] { raise(SIGSEGV); }, 0 },
        { "none for a breakpoint, which does not come again", SIGTRAP, SIG_DFL, 0, Faults::Breakpoint, 0 },
        { "ignoring, which the system does not grant for a real fault", SIGSEGV, SIG_IGN, 0, Faults::WriteNull, 0 },
        { "once without effect, then deadly", SIGSEGV, [](int) {}, static_cast<int>(SA_RESETHAND), Faults::WriteNull,
          0 },
        { "the host's", SIGSEGV, ExitAsHandled, 0, Faults::WriteNull, c_hostHandled },
        { "the host's, which needs much stack", SIGSEGV, ExitAfterMuchWork, 0, Faults::WriteNull, c_hostHandled },
        { "a guard of another thread", SIGSEGV, ExitAsHandled, 0,
          [] { Execute([] { std::thread(Faults::WriteNull).join(); }); }, c_hostHandled },
        { "sent to the program, no fault of the action", SIGSEGV, ExitAsHandled, 0,
          [] { Execute([] { kill(getpid(), SIGSEGV); }); }, c_hostHandled },
        { "ignoring a breakpoint", SIGTRAP, SIG_IGN, 0, [] { raise(SIGTRAP), _exit(c_hostHandled); }, c_hostHandled },
    };
    for (auto const& [why, signal, handler, flags, action, code] : rows)
    {
        auto const isExpected = [expected = code, deadly = signal](int status)
        { return expected == 0 ? testing::KilledBySignal(deadly)(status) : testing::ExitedWithCode(expected)(status); };
        EXPECT_EXIT((Handle(signal, handler, flags), UseGuard(), action()), isExpected, "") << why;
    }
}

sigset_t GetMask()
{
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return mask;
}

// The answers of the handler from before: whether it was told everything, with its own signals blocked.
bool g_isTold = false;
bool g_isDeferred = false;

TEST_F(ExceptionHandlerDeathTest, TheHandlerFromBeforeRunsAsTheSystemWouldRunIt)
{
    auto const handle = [](int signal, siginfo_t* info, void* context)
    {
        sigset_t const mask = GetMask();
        bool const isMasked = sigismember(&mask, SIGUSR1) == 1 && sigismember(&mask, SIGUSR2) == 0;
        g_isTold = signal == SIGTRAP && info->si_signo == SIGTRAP && context != nullptr && isMasked;
        g_isDeferred = sigismember(&mask, SIGTRAP) == 1;
    };
    auto const passOn = [&](int flags)
    {
        struct sigaction action = {};
        action.sa_sigaction = handle;
        action.sa_flags = SA_SIGINFO | flags;
        sigaddset(&action.sa_mask, SIGUSR1);
        sigaction(SIGTRAP, &action, nullptr);
        UseGuard();
        raise(SIGTRAP);
        sigset_t const mask = GetMask();
        bool const isRestored = sigismember(&mask, SIGUSR1) == 0 && sigismember(&mask, SIGTRAP) == 0;
        _exit(g_isTold && g_isDeferred == (flags == 0) && isRestored ? c_hostHandled : 1);
    };
    EXPECT_EXIT(passOn(0), testing::ExitedWithCode(c_hostHandled), "");
    EXPECT_EXIT(passOn(SA_NODEFER), testing::ExitedWithCode(c_hostHandled), "");
}

// What a core file would hold, as seen by the tracer of a process that faults outside of the guard.
TEST_F(ExceptionHandlerDeathTest, TheSystemsAnswerGetsTheFaultItself)
{
    auto const traceFault = []
    {
        Handle(SIGSEGV, SIG_DFL);
        UseGuard();
        pid_t const child = fork();
        if (child < 0)
            _exit(1); // else the signals below would go to everybody
        if (child == 0)
        {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            Faults::WriteNull();
        }
        waitpid(child, nullptr, 0); // stopped before our handler
        ptrace(PTRACE_CONT, child, nullptr, SIGSEGV);
        waitpid(child, nullptr, 0); // and before the system's answer
        siginfo_t info = {};
        ptrace(PTRACE_GETSIGINFO, child, nullptr, &info);
        kill(child, SIGKILL);
        _exit(info.si_signo == SIGSEGV && info.si_code == SEGV_MAPERR ? c_hostHandled : 1);
    };
    EXPECT_EXIT(traceFault(), testing::ExitedWithCode(c_hostHandled), "");
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
        auto const exitInside = []
        {
            FaultsBehindTheGuard const last;
            Execute([] { Execute([] { pthread_exit(nullptr); }); });
        };
        std::thread(exitInside).join();
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(c_hostHandled), "");
}
