# Shows that every source is as the formatter would write it. Runs at the root. Usage: check-format.sh CLANG_FORMAT
find . -path ./build -prune -o -path './.*' -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 "$1" --dry-run --Werror
