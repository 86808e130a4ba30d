# Warnings for our own code, and what else its text needs of the compiler. Warnings are errors in our presets only:
# whoever builds from source may have another compiler.
add_library(VekWarnings INTERFACE)
set(gnu_warnings -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # Part of -Wconversion for this compiler only; the bits stay the same.
    list(APPEND gnu_warnings -Wno-sign-conversion)
endif()
if(MSVC) # clang-cl as well
    target_compile_options(VekWarnings INTERFACE /utf-8 /permissive- /W4)
    # It calls the C library's own functions deprecated.
    target_compile_definitions(VekWarnings INTERFACE _CRT_SECURE_NO_WARNINGS)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        list(REMOVE_ITEM gnu_warnings -Wextra) # /W4 already
        list(APPEND gnu_warnings -Wno-language-extension-token) # __try
        target_compile_options(VekWarnings INTERFACE ${gnu_warnings})
    endif()
    target_compile_options(VekWarnings INTERFACE $<$<BOOL:${VEK_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(VekWarnings INTERFACE
        -Wall ${gnu_warnings} $<$<BOOL:${VEK_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
