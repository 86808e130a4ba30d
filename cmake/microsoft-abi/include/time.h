#pragma once

#include_next <time.h>

#if !defined(TIME_UTC)
struct timespec
{
    time_t tv_sec;
    long tv_nsec;
};
#endif
