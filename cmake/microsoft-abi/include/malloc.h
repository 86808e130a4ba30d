#pragma once

#include_next <malloc.h>

#if defined(__cplusplus)
extern "C" int _resetstkoflw();
#endif
