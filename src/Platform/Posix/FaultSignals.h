#pragma once

#include <signal.h>

namespace Vek::Platform
{

using FaultHandler = void (*)(int signal, siginfo_t* info, void* context);

/// Makes `handler` the process's handler of SIGSEGV, SIGBUS, SIGFPE, SIGILL and SIGTRAP. Only the first call acts.
/// The handler runs on the alternate stack, if the thread has one, and blocks no signal.
void InstallFaultHandler(FaultHandler handler);

/// From within the handler: treats the signal as if the handler had never been installed. Returns when the previous
/// handler returns or the signal was sent and is ignored; otherwise the process dies from the signal, at the latest
/// when the handler has returned to the faulting instruction.
void PassOnFaultSignal(int signal, siginfo_t* info, void* context);

/// Lets the five signals reach this thread as long as the object lives. The system kills a process whose thread faults
/// while it blocks the signal, and worker threads often block all.
class UnblockedFaultSignals
{
public:
    UnblockedFaultSignals();
    UnblockedFaultSignals(UnblockedFaultSignals const&) = delete;
    UnblockedFaultSignals& operator=(UnblockedFaultSignals const&) = delete;
    ~UnblockedFaultSignals();

private:
    sigset_t m_before;
};

} // namespace Vek::Platform
