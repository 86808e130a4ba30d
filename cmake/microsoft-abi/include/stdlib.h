#pragma once

#include_next <stdlib.h>

#if defined(__cplusplus)
extern "C" int ___mb_cur_max_func();
extern "C" float _strtof_l(char const*, char**, _locale_t);
extern "C" double _strtod_l(char const*, char**, _locale_t);
#    undef MB_CUR_MAX
#    define MB_CUR_MAX ___mb_cur_max_func()
#endif
