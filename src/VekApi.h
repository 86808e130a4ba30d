#pragma once

/// VEK_API marks what leaves the library; everything else stays hidden.
#if defined(_WIN32) && defined(VEK_BUILDING_LIBRARY)
#    define VEK_API __declspec(dllexport)
#elif defined(_WIN32)
#    define VEK_API __declspec(dllimport)
#else
#    define VEK_API __attribute__((visibility("default")))
#endif
