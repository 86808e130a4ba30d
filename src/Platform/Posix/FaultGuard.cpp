#include <Platform/FaultGuard.h>

#include <Platform/CatchAll.h>
#include <Platform/ExceptionState.h>
#include <Platform/Posix/AlternateStack.h>
#include <Platform/Posix/FaultSignals.h>

#include <cfenv>
#include <csetjmp>
#include <cxxabi.h>
#include <ucontext.h>

namespace Vek::Platform
{
namespace
{

#if defined(_LIBCPP_VERSION)
struct Unwinding // its runtime enters no handler when it unwinds a cancelled thread
{
};
#else
using Unwinding = abi::__forced_unwind;
#endif

class Guard;

// The running guards of this thread form a chain, innermost first. "initial-exec", because the signal handler reads it:
// other models of thread-local storage may allocate memory at a thread's first access.
[[gnu::tls_model("initial-exec")]] constinit thread_local Guard* volatile t_innermost = nullptr;

/// One running call: where its thread lands after a fault, and what has to be put back there.
class Guard
{
public:
    Guard() : m_outer(t_innermost) {}
    Guard(Guard const&) = delete;
    Guard& operator=(Guard const&) = delete;

    // Runs on every way out: return, landing after a fault, unwinding of a cancelled thread.
    ~Guard() { t_innermost = m_outer; }

    void Enter() { t_innermost = this; }
    void RestoreExceptions() const { m_exceptions.Restore(); }

    sigjmp_buf landing;

private:
    UnblockedFaultSignals m_unblocked;
    Guard* m_outer;
    ExceptionState m_exceptions;
};

// The system starts a handler with default floating-point modes (rounding, masks). The code after the landing goes on
// with those of the faulting code, as after a return from the handler, but without the pending exception flags.
void ReturnToFloatingPointModes(void* context)
{
    auto const& faulting = *static_cast<ucontext_t const*>(context)->uc_mcontext.fpregs;
    constexpr unsigned int flags = FE_ALL_EXCEPT;
    std::fenv_t environment;
    std::fegetenv(&environment);
    environment.__control_word = faulting.cwd;
    environment.__mxcsr = faulting.mxcsr & ~flags;
    std::fesetenv(&environment);
}

// A fault comes from the processor or from raise(). The same signal sent by another process is meant for the program,
// not for the thread that happens to receive it.
bool IsFault(siginfo_t const& info)
{
    return info.si_code > 0 || info.si_code == SI_TKILL;
}

void OnFaultSignal(int signal, siginfo_t* info, void* context)
{
    Guard* const guard = t_innermost;
    if (guard == nullptr || !IsFault(*info))
    {
        PassOnFaultSignal(signal, info, context);
        return;
    }
    ReturnToFloatingPointModes(context);
    siglongjmp(guard->landing, 1);
}

} // namespace

bool RunGuarded(std::function<void()> const& action)
{
    InstallFaultHandler(OnFaultSignal);
    EnsureAlternateStack();
    Guard guard;
    // The signal mask is not saved, which would cost a system call: the handler runs with the mask of the fault.
    if (sigsetjmp(guard.landing, 0) != 0)
    {
        guard.RestoreExceptions();
        return false;
    }
    guard.Enter();
    return CatchAll<Unwinding>(action);
}

} // namespace Vek::Platform
