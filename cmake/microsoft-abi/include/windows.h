#pragma once

// An intrinsic of the compiler, declared otherwise there.
#define _InterlockedCompareExchange128 DeclaredOtherwise
#include_next <windows.h>
#undef _InterlockedCompareExchange128
#undef inline
#define GetExceptionCode _exception_code
