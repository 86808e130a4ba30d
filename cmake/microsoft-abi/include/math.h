#pragma once

#include_next <math.h>

#if defined(__cplusplus)
// Macros there, functions in C++.
#    undef fpclassify
#    undef isfinite
#    undef isinf
#    undef isnan
#    undef isnormal
#    undef signbit

template <class T>
int fpclassify(T value)
{
    return __builtin_fpclassify(FP_NAN, FP_INFINITE, FP_NORMAL, FP_SUBNORMAL, FP_ZERO, value);
}

template <class T>
bool isfinite(T value)
{
    return __builtin_isfinite(value);
}

template <class T>
bool isinf(T value)
{
    return __builtin_isinf(value);
}

template <class T>
bool isnan(T value)
{
    return __builtin_isnan(value);
}

template <class T>
bool isnormal(T value)
{
    return __builtin_isnormal(value);
}

template <class T>
bool signbit(T value)
{
    return __builtin_signbit(value);
}
#endif
