#!/usr/bin/env bash
# Builds the library and the example program and runs it. Installs what is missing (Debian 12).
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/packages.sh
require_packages g++ cmake ninja-build gdb-source gnucash-common

mkdir -p build/linux-release
log=build/linux-release/build.log
if ! { cmake --preset linux-release -DVEK_BUILD_TESTS=OFF &&
    cmake --build build/linux-release --target SettingsDocument; } </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
exec build/linux-release/bin/SettingsDocument "$@"
