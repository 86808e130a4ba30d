#pragma once

/// VEK_API marks what leaves the library; everything else stays hidden.
/// VEK_LOCAL marks private classes nested in one that leaves it, which would go with it on Linux.
/// VEK_TEMPLATE_API marks class templates whose instantiations leave the library. On Linux their type information would
/// stay behind otherwise; on Windows the instantiation says it all.
#if defined(_WIN32) && defined(VEK_BUILDING_LIBRARY)
#    define VEK_API __declspec(dllexport)
#    define VEK_LOCAL
#    define VEK_TEMPLATE_API
#elif defined(_WIN32)
#    define VEK_API __declspec(dllimport)
#    define VEK_LOCAL
#    define VEK_TEMPLATE_API
#else
#    define VEK_API __attribute__((visibility("default")))
#    define VEK_LOCAL __attribute__((visibility("hidden")))
#    define VEK_TEMPLATE_API VEK_API
#endif
