#!/usr/bin/env bash
# Builds the benchmarks and runs them.
#
#   benchmarks/run.sh [FILTER]                             times beside the peers; without a filter memory and linearity
#   benchmarks/run.sh --instructions [FILTER]              instructions of every row, counted under callgrind
#   benchmarks/run.sh --instructions --check [FILTER]      ours; fails where one grew by more than a tenth
#   benchmarks/run.sh --instructions --update [FILTER]     ours; writes instructions.txt anew
#
# FILTER is a regular expression that is found in the name of a row. Installs what is missing (Debian 12).
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
require_packages g++ cmake ninja-build gdb-source pkg-config python3 libbenchmark-dev libexpat1-dev libxml2-dev \
    liborcus-dev libpugixml-dev librapidxml-dev libtinyxml2-dev libicu-dev libutfcpp-dev qt6-base-dev \
    libmodpbase64-dev libfccp-dev libcsv-dev libboost-dev libintelrdfpmath-dev libquantlib0-dev \
    libhowardhinnant-date-dev libmicroprofile-dev libspdlog-dev re2c flex valgrind

build=build/linux-release
program=$build/bin/FrameworkUtilitiesBenchmarks

# The library and what measures it; the tests of a build that has them stay as they are.
build_benchmarks()
{
    mkdir -p "$build"
    { cmake --preset linux-release -DVEK_BUILD_BENCHMARKS=ON &&
        cmake --build "$build" --target FrameworkUtilitiesBenchmarks MemoryProbe LinearityProbe
    } >"$build/build.log" 2>&1 || { cat "$build/build.log"; exit 1; }
}

measure_times()
{
    "$program" --benchmark_filter="${1:-.}" --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_format=json 2>/dev/null
}

measure_memory_and_linearity()
{
    local document=$build/settings-100MB.xml reader
    "$build/bin/MemoryProbe" make "$document"
    for reader in ours expat libxml2 orcus rapidxml; do "$build/bin/MemoryProbe" "$reader" "$document"; done
    rm "$document"
    echo
    "$build/bin/LinearityProbe"
}

case "${1:-}" in
--instructions)
    shift
    build_benchmarks
    exec python3 benchmarks/instructions.py "$program" "$@"
    ;;
-*)
    sed -n '2,9s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
build_benchmarks
measure_times "$@" | python3 benchmarks/ratios.py
[ $# -eq 0 ] || exit 0
echo
measure_memory_and_linearity
