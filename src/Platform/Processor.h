#pragma once

/// What this processor can do beyond SSE2, which every one has; looked up on first use. Code for more than SSE2 is
/// compiled function by function, each marked with what it needs, and called only where the processor has it.
#if defined(__GNUC__)
#    define VEK_NEEDS(instructions) __attribute__((target(instructions)))
#else
#    define VEK_NEEDS(instructions) // other compilers take every intrinsic anywhere
#endif

namespace Vek::Platform
{

bool HasSsse3() noexcept;

} // namespace Vek::Platform
