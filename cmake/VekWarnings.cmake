# Warnings for our own code; they are errors everywhere.
add_library(VekWarnings INTERFACE)
target_compile_options(VekWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # Part of -Wconversion for this compiler only; the bits stay the same.
    target_compile_options(VekWarnings INTERFACE -Wno-sign-conversion)
endif()
