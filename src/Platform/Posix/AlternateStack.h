#pragma once

namespace Vek::Platform
{

/// Sees to it that this thread has a stack for signal handlers, so that a handler can run after a stack overflow.
/// One that the thread has already stays in use. Ours goes with the thread. Without memory for it there is none, and
/// stack overflow alone stays deadly; the next call tries again.
void EnsureAlternateStack();

} // namespace Vek::Platform
