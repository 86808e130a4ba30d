#include "Interruption.h"

#include <atomic>
#include <csignal>

using Vek::Framework::Utilities::CancellationToken;

namespace Example
{

namespace
{

constinit std::atomic<CancellationToken*> s_token = nullptr;
static_assert(std::atomic<CancellationToken*>::is_always_lock_free, "the handler may interrupt anything");

// The second Ctrl+C ends the program after all: some systems forget the handler once it was called, others do not.
void OnInterruption(int signal)
{
    s_token.load()->Cancel();
    std::signal(signal, SIG_DFL);
}

} // namespace

void CancelOnInterruption(CancellationToken& token)
{
    s_token = &token;
    std::signal(SIGINT, OnInterruption);
}

} // namespace Example
