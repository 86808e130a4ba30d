#pragma once

/// Attributes of functions that compilers spell differently, or lack. They stand first in a declaration.
///
/// VEK_NOINLINE: stays a call. VEK_INLINE: never a call, however long. VEK_COLD: hardly ever called. VEK_NEEDS:
/// compiled with instructions beyond SSE2, to be called only where the processor has them.
#if defined(_MSC_VER) // clang-cl as well
#    define VEK_NOINLINE __declspec(noinline)
#    define VEK_INLINE __forceinline
#    define VEK_COLD __declspec(noinline)
#else
#    define VEK_NOINLINE [[gnu::noinline]]
#    define VEK_INLINE [[gnu::always_inline]] inline
#    define VEK_COLD [[gnu::cold]]
#endif
#if defined(__GNUC__) || defined(__clang__)
#    define VEK_NEEDS(instructions) __attribute__((target(instructions)))
#else
#    define VEK_NEEDS(instructions) // other compilers take every intrinsic anywhere
#endif
