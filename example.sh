#!/usr/bin/env bash
# Builds the library and an example program and runs it. Installs what is missing (Debian 12).
#
#   ./example.sh                             SettingsDocument, the tour through XML documents
#   ./example.sh PROGRAM [ARGUMENT...]       another one: a folder of examples/ with its own arguments
#   ./example.sh Rechnungsbuch               the report of the application Rechnungsbuch on its sample data
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
    [ $# -gt 0 ] || set -- examples/Rechnungsbuch/Data/Rechnungen.xml --date 31.3.2025
fi

mkdir -p build/linux-release
log=build/linux-release/build.log
if ! { cmake --preset linux-release -DVEK_BUILD_TESTS=OFF -DVEK_BUILD_EXAMPLES=ON &&
    cmake --build build/linux-release --target "$program"; } </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
exec build/linux-release/bin/$program "$@"
