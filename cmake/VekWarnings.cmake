# Warnings for our own code. They are errors in our presets only: whoever builds from source may have another compiler.
add_library(VekWarnings INTERFACE)
if(MSVC) # clang-cl as well
    target_compile_options(VekWarnings INTERFACE /W4 $<$<BOOL:${VEK_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(VekWarnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${VEK_WARNINGS_AS_ERRORS}>:-Werror>)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # Part of -Wconversion for this compiler only; the bits stay the same.
        target_compile_options(VekWarnings INTERFACE -Wno-sign-conversion)
    endif()
endif()
