#pragma once

#include_next <ctype.h>

#if defined(__cplusplus)
extern "C" int _isdigit_l(int, _locale_t);
extern "C" int _islower_l(int, _locale_t);
extern "C" int _isupper_l(int, _locale_t);
extern "C" int _isxdigit_l(int, _locale_t);
#endif
