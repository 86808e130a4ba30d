# Warnings for our own code; they are errors everywhere.
add_library(VekWarnings INTERFACE)
target_compile_options(VekWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
