#!/usr/bin/env bash
# Builds the benchmarks and runs them.
#
#   benchmarks/run.sh [--quick] [FILTER]               times beside the peers; without a filter memory and linearity
#   benchmarks/run.sh --windows [--quick] [FILTER]     ours on Windows, under Wine, beside ours on Linux
#   benchmarks/run.sh --instructions [FILTER]          instructions of every row, counted under callgrind
#   benchmarks/run.sh --instructions --check [FILTER]  ours; fails where one grew by more than a tenth (instructions.txt)
#   benchmarks/run.sh --instructions --update [FILTER] ours; writes instructions.txt anew
#   benchmarks/run.sh --readme [--quick]               all of it, into the tables of README.md
#
# FILTER is a regular expression that is found in the name of a row. --quick is for a first look: three short repetitions
# instead of nine. Installs what is missing (Debian 12).
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
require_packages g++ cmake ninja-build gdb-source pkg-config python3 libbenchmark-dev libexpat1-dev libxml2-dev \
    liborcus-dev libpugixml-dev librapidxml-dev libtinyxml2-dev libicu-dev libutfcpp-dev qt6-base-dev \
    libmodpbase64-dev libfccp-dev libcsv-dev libboost-dev libintelrdfpmath-dev libquantlib0-dev \
    libhowardhinnant-date-dev libmicroprofile-dev libspdlog-dev re2c flex valgrind

linux=build/linux-release
windows=build/windows-benchmarks # not the tests' folder: they would be switched off there
name=FrameworkUtilitiesBenchmarks
times=$linux/times.json
times_windows=$windows/times.json
instructions=$linux/instructions.json

# build PRESET FOLDER TARGET...
build()
{
    local preset=$1 folder=$2
    shift 2
    mkdir -p "$folder"
    { cmake --preset "$preset" -B "$folder" -DVEK_BUILD_TESTS=OFF -DVEK_BUILD_EXAMPLES=OFF -DVEK_BUILD_BENCHMARKS=ON &&
        cmake --build "$folder" --target "$@"; } >"$folder/build.log" 2>&1 || { cat "$folder/build.log"; exit 1; }
}

build_linux()
{
    build linux-release "$linux" $name MemoryProbe LinearityProbe
}

build_windows()
{
    require_packages g++-mingw-w64-x86-64-posix wine wine64
    require_source_package benchmark "$windows/google-benchmark"
    build windows-release "$windows" $name
}

repetitions=(--benchmark_repetitions=9)

# measure FILTER FILE PROGRAM...: medians of interleaved repetitions
measure()
{
    local filter=$1 file=$2
    shift 2
    "$@" "${repetitions[@]}" --benchmark_filter="$filter" --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_format=json >"$file" 2>"$file.log" ||
        { cat "$file.log"; exit 1; }
    [ -s "$file" ] || { echo "No row matches $filter" >&2; exit 1; }
}

start_wine()
{
    export WINEPREFIX=$PWD/$windows/wineprefix WINEDEBUG=-all WINEDLLOVERRIDES=winedbg.exe=d LC_ALL=de_DE.UTF-8
    trap 'wineserver -k' EXIT
    sh cmake/start-wine.sh
}

# The rows of the program for Windows that match, as a filter that finds just these. The largest stores of properties
# take minutes to make there, which is no time that counts.
list_windows_rows()
{
    local rows
    rows=$(wine "$windows/bin/$name.exe" --benchmark_list_tests | tr -d '\r' |
        grep -Ev '/10000(/|$)' | grep -E -e "${1:-.}" | paste -sd '|')
    echo "^($rows)\$"
}

measure_memory_and_linearity()
{
    local document=$linux/settings-100MB.xml reader
    "$linux/bin/MemoryProbe" make "$document"
    for reader in ours expat libxml2 orcus rapidxml; do "$linux/bin/MemoryProbe" "$reader" "$document"; done
    rm "$document"
    echo
    "$linux/bin/LinearityProbe"
}

show_machine()
{
    echo "$(lscpu | sed -n 's/^Model name: *//p'), $(nproc) processors; $(. /etc/os-release && echo "$PRETTY_NAME")," \
        "GCC $(gcc -dumpfullversion), $(valgrind --version), $(wine --version 2>/dev/null)."
}

task=times
case "${1:-}" in
--instructions | --readme | --windows)
    task=${1#--}
    shift
    ;;
esac
if [ "$task" = instructions ]; then
    build_linux
    exec python3 benchmarks/instructions.py "$linux/bin/$name" "$@"
fi
if [ "${1:-}" = --quick ]; then
    repetitions=(--benchmark_repetitions=3 --benchmark_min_time=0.1)
    shift
fi
case "${1:-}" in
-*)
    sed -n '2,12s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
filter=${1:-}

build_linux
case "$task" in
times)
    measure "${filter:-.}" "$times" "$linux/bin/$name"
    python3 benchmarks/report.py --times "$times"
    [ -z "$filter" ] || exit 0
    measure_memory_and_linearity
    ;;
windows)
    build_windows
    start_wine
    rows=$(list_windows_rows "$filter")
    measure "$rows" "$times" "$linux/bin/$name"
    measure "$rows" "$times_windows" wine "$windows/bin/$name.exe"
    python3 benchmarks/report.py --times "$times" --windows "$times_windows"
    ;;
readme)
    build_windows
    start_wine
    measure . "$times" "$linux/bin/$name"
    measure "$(list_windows_rows)" "$times_windows" wine "$windows/bin/$name.exe"
    python3 benchmarks/instructions.py "$linux/bin/$name" --json "$instructions" >/dev/null
    python3 benchmarks/report.py --times "$times" --instructions "$instructions" --windows "$times_windows" \
        --readme "$(show_machine)"
    measure_memory_and_linearity
    ;;
esac
