#include <Platform/Posix/FaultSignals.h>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Vek::Platform
{
namespace
{

constexpr int c_faultSignals[] = { SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP };

constinit struct sigaction s_previous[NSIG] = {}; // by signal number

// The system calls the handlers for as long as the process runs, so what holds them stays loaded from now on.
void StayLoaded()
{
    Dl_info module;
    if (dladdr(s_previous, &module) != 0)
        dlopen(module.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

// The previous action is known before the handler can run: another thread may fault at any time.
// sigaction cannot fail here: the signals exist and may be handled.
bool Install(FaultHandler handler)
{
    StayLoaded();
    struct sigaction action = {};
    action.sa_sigaction = handler;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    for (int const signal : c_faultSignals)
    {
        sigaction(signal, nullptr, &s_previous[signal]);
        sigaction(signal, &action, nullptr);
    }
    return true;
}

void CallPrevious(int signal, siginfo_t* info, void* context)
{
    struct sigaction const previous = s_previous[signal];
    if ((previous.sa_flags & static_cast<int>(SA_RESETHAND)) != 0)
        s_previous[signal].sa_handler = SIG_DFL;
    sigset_t blocked = previous.sa_mask;
    if ((previous.sa_flags & SA_NODEFER) == 0)
        sigaddset(&blocked, signal);
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    if ((previous.sa_flags & SA_SIGINFO) != 0)
        previous.sa_sigaction(signal, info, context);
    else
        previous.sa_handler(signal);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

// A real fault comes again as soon as the handler returns, and the core file then shows where it was. Breakpoints do
// not fault a second time, nor does what was sent: those are sent again, as they came.
void Die(int signal, siginfo_t* info)
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
    bool const comesAgain = info->si_code > 0 && signal != SIGTRAP;
    if (!comesAgain && syscall(SYS_rt_tgsigqueueinfo, getpid(), gettid(), signal, info) != 0)
        raise(signal);
}

sigset_t FaultSignalSet()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (int const signal : c_faultSignals)
        sigaddset(&signals, signal);
    return signals;
}

} // namespace

void InstallFaultHandler(FaultHandler handler)
{
    [[maybe_unused]] static bool const s_isInstalled = Install(handler);
}

void PassOnFaultSignal(int signal, siginfo_t* info, void* context)
{
    bool const isSent = info->si_code <= 0; // by a program; the system lets nobody ignore a real fault
    if (s_previous[signal].sa_handler == SIG_DFL || (s_previous[signal].sa_handler == SIG_IGN && !isSent))
        Die(signal, info);
    else if (s_previous[signal].sa_handler != SIG_IGN)
        CallPrevious(signal, info, context);
}

UnblockedFaultSignals::UnblockedFaultSignals()
{
    sigset_t const signals = FaultSignalSet();
    pthread_sigmask(SIG_UNBLOCK, &signals, &m_before);
}

UnblockedFaultSignals::~UnblockedFaultSignals()
{
    sigset_t blocked;
    sigset_t const signals = FaultSignalSet();
    sigandset(&blocked, &signals, &m_before);
    if (!sigisemptyset(&blocked))
        pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
}

} // namespace Vek::Platform
