#include <SysBase/ExceptionHandler.h>
#include <SysBase/Faults.h>

#include <atomic>
#include <cfenv>

namespace
{

using VekSysBase::ExceptionHandler;

bool Execute(std::function<void()> const& action)
{
    return ExceptionHandler::ExecuteSafe(action, L"a", L"b", L"c");
}

/// Thrown where a fault or its own destructor makes the runtime lose it. Noting the address keeps the lost memory
/// reachable, so that only other leaks are reported.
class LostException
{
public:
    LostException() { s_lost[s_count++ % s_lost.size()] = this; }

private:
    static inline std::array<void const*, 256> s_lost;
    static inline std::atomic<std::size_t> s_count = 0;
};

class ThrowingDestructor : LostException
{
public:
    ~ThrowingDestructor() noexcept(false) { throw ThrowingDestructor(); }
};

struct FaultingDestructor
{
    ~FaultingDestructor() { Faults::WriteNull(); }
};

void FaultInHandler()
{
    try
    {
        throw LostException();
    }
    catch (LostException const&)
    {
        Faults::WriteNull();
    }
}

void FaultWhileUnwinding()
{
    FaultingDestructor const faulting;
    throw LostException();
}

Rows<char const*, void (*)()> const c_failures = {
    { "exception of the standard library", [] { throw std::runtime_error("failed"); } },
    { "exception of no class", [] { throw 5; } },
    { "exception whose destructor throws", [] { throw ThrowingDestructor(); } },
    { "write through null", Faults::WriteNull },
    { "call of null", Faults::CallNull },
    { "division by zero", Faults::DivideByZero },
    { "quotient out of range", Faults::DivideBeyondRange },
    { "illegal instruction", Faults::IllegalInstruction },
    { "breakpoint", Faults::Breakpoint },
    { "fault in a handler", FaultInHandler },
    { "fault in a destructor during unwinding", FaultWhileUnwinding },
    { "fault in a function that must not throw", []() noexcept { Faults::DivideByZero(); } },
};

// Every failure in every surrounding: a thread must be as good as new after each.
void ExpectEveryFailureCaught()
{
    for (auto const& [what, action] : c_failures)
    {
        SCOPED_TRACE(what);
        for (int repetition = 0; repetition < 3; ++repetition)
        {
            EXPECT_FALSE(Execute(action));
            EXPECT_EQ(0, std::uncaught_exceptions());
            EXPECT_EQ(nullptr, std::current_exception());
        }
        auto const nested = [run = action] { EXPECT_FALSE(Execute(run)); };
        EXPECT_TRUE(Execute(nested));
        EXPECT_FALSE(Execute([&] { nested(), Faults::WriteNull(); })) << "outer fault after an inner failure";
    }
}

} // namespace

TEST(ExceptionHandler, ActionThatReturns)
{
    EXPECT_TRUE(Execute(std::function<void()>())) << "empty";
    EXPECT_TRUE(Execute([] { EXPECT_THROW(throw 5, int); })) << "handled inside";
}

TEST(ExceptionHandler, EveryFailureOnEveryThread)
{
    ExpectEveryFailureCaught();
    std::thread other(ExpectEveryFailureCaught);
    std::thread(ExpectEveryFailureCaught).join();
    other.join();
}

TEST(ExceptionHandler, LeavesWhatTheActionReachedAndTheHandlerAround)
{
    auto const held = std::make_shared<int>(0);
    try
    {
        throw std::runtime_error("outer");
    }
    catch (std::runtime_error const&)
    {
        EXPECT_FALSE(Execute([&] { ++*held, Faults::WriteNull(), ++*held; }));
        auto const fail = [&held]
        {
            auto const local = held;
            throw 5;
        };
        EXPECT_FALSE(Execute(fail));
        EXPECT_THROW(throw, std::runtime_error) << "the caller's own exception is still the current one";
    }
    EXPECT_EQ(1, *held);
    EXPECT_EQ(1, held.use_count()) << "an exception runs the destructors of the action";
}

TEST(ExceptionHandler, FaultKeepsTheRoundingMode)
{
    std::fesetround(FE_UPWARD);
    EXPECT_FALSE(Execute(Faults::WriteNull));
    int const mode = std::fegetround();
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(FE_UPWARD, mode);
}
