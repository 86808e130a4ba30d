#!/usr/bin/env bash
# Builds the library and an example program and runs it. Installs what is missing (Debian 12).
#
#   ./example.sh                             SettingsDocument, the tour through XML documents
#   ./example.sh PROGRAM [ARGUMENT...]       another one: a folder of examples/ with its own arguments
#   ./example.sh Rechnungsbuch               the report of the application Rechnungsbuch on its sample data; where
#                                            MinGW-w64, Wine and Xvfb are, also its Windows program, as one file, and
#                                            pictures of its window
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/packages.sh
require_packages g++ cmake ninja-build gdb-source gnucash-common

program=SettingsDocument
if [ $# -gt 0 ] && [ -f "examples/$1/main.cpp" ]; then
    program=$1
    shift
elif [ "${1-}" = Rechnungsbuch ]; then
    program=RechnungsbuchReport
    shift
    if [ $# -eq 0 ]; then
        set -- examples/Rechnungsbuch/Data/Rechnungen.xml --date 31.3.2025
        has_dialogs=1
    fi
fi

# Its output is shown only if it fails.
run_quietly()
{
    local log=$1
    shift
    "$@" </dev/null >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

build_for_linux()
{
    cmake --preset linux-release -DVEK_BUILD_TESTS=OFF -DVEK_BUILD_EXAMPLES=ON &&
        cmake --build build/linux-release --target "$program"
}

mkdir -p build/linux-release
run_quietly build/linux-release/build.log build_for_linux
[ -n "${has_dialogs-}" ] || exec build/linux-release/bin/$program "$@"
build/linux-release/bin/$program "$@"

echo
for tool in x86_64-w64-mingw32-g++-posix wine xvfb-run; do
    if ! command -v $tool >/dev/null; then
        echo "The dialogs take $tool: install g++-mingw-w64-x86-64-posix, wine, wine64, xauth and xvfb to see them."
        exit 0
    fi
done
. tools/one-file.sh
require_packages fonts-wine imagemagick xauth
mkdir -p build/one-file
run_quietly build/one-file/build.log build_one_file
echo "Program for Windows: build/one-file/bin/Rechnungsbuch.exe; its window:"
take_one_file_screenshots build/one-file/pictures
