#pragma once

// The language and the processor are asked for here, once: the errors of the first construct that is missing would go
// on for hundreds of lines. A header that is nowhere ends the compilation.
#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) < 202002L
#    error "Framework Utilities needs C++20: compile with -std=c++20 (GCC, clang) or /std:c++20 (MSVC)"
#    include <Framework Utilities needs C++20>
#elif !defined(__x86_64__) && !defined(_M_X64)
#    error "Framework Utilities is made for 64-bit programs on x86 processors"
#    include <Framework Utilities needs a 64-bit target>
#endif

/// VEK_API marks what leaves the library; everything else stays hidden.
/// VEK_LOCAL marks private classes nested in one that leaves it, which would go with it on Linux.
/// VEK_TEMPLATE_API marks class templates whose instantiations leave the library. On Linux their type information would
/// stay behind otherwise; on Windows the instantiation says it all.
/// VEK_STATIC is defined where the library is a static one, in hosts too (the package sees to it): nothing leaves it.
#if defined(VEK_STATIC)
#    define VEK_API
#    define VEK_LOCAL
#    define VEK_TEMPLATE_API
#elif defined(_WIN32) && defined(VEK_BUILDING_LIBRARY)
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

#if defined(_MSC_VER)
// Exported classes with members or bases of the standard library: host and library share compiler and runtime anyway.
#    pragma warning(disable : 4251 4275)
#endif
