#pragma once

#include <VekApi.h>

#include <functional>
#include <string>

namespace VekSysBase
{

/// The one place that swallows every failure on purpose: for work that must not bring the program down.
class VEK_API ExceptionHandler
{
public:
    ExceptionHandler() = default;
    ExceptionHandler(ExceptionHandler const&) = default;
    ExceptionHandler& operator=(ExceptionHandler const&) noexcept;
    ExceptionHandler& operator=(ExceptionHandler&&) noexcept;

    /// Calls `action` on this thread. True when it returned; false when anything ended it: an exception of any type or
    /// a machine fault (access violation, integer division by zero or overflow, illegal instruction, breakpoint; on
    /// Linux also stack overflow). Nothing is reported, logged or shown. An empty `action` is not called and gives
    /// true.
    ///
    /// After an exception the destructors of `action` have run. After a fault they have not: what `action` held, locks
    /// included, stays as the fault found it. Faults that `action` handles itself are its own affair; calls may nest.
    ///
    /// Not stopped: std::terminate and abort, and the unwinding of a thread that was cancelled or that left by
    /// pthread_exit, which passes through. On Windows stack overflow is answered like the other faults, and the guard
    /// page is put back; but under Wine the system itself ends the process before, so nothing is promised for it.
    ///
    /// `action` must not leave by longjmp. On Linux its guard would stay armed after its frame is gone, and the next
    /// fault of the thread would go on there; longjmp within the action is its own affair.
    ///
    /// Linux: the first call installs handlers for SIGSEGV, SIGBUS, SIGFPE, SIGILL and SIGTRAP, and every thread that
    /// calls gets an alternate signal stack of 1 MiB unless it has one; it takes memory as it is used. Signals that no
    /// running call has to answer for go to the handler that was installed before, which runs on that stack, or to the
    /// system's own answer, whose core file shows the fault where it happened. A host that installs its own handler
    /// later takes these signals from us and should hand on what it does not know.
    ///
    /// The three texts are ignored. They let the caller say what the operation was, and hosts pass them.
    static bool ExecuteSafe(std::function<void()> const& action, std::wstring const& a, std::wstring const& b,
                            std::wstring const& c);
};

} // namespace VekSysBase
