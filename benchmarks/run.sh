#!/usr/bin/env bash
# Builds the benchmarks, runs them beside their peers and prints the ratios of medians, then memory and linearity.
# Usage: benchmarks/run.sh [NAME_FILTER]
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh
require_packages g++ cmake ninja-build gdb-source pkg-config python3 libbenchmark-dev libexpat1-dev libxml2-dev \
    liborcus-dev libpugixml-dev librapidxml-dev libtinyxml2-dev libicu-dev libutfcpp-dev qt6-base-dev \
    libmodpbase64-dev libfccp-dev libcsv-dev libboost-dev libintelrdfpmath-dev libquantlib0-dev \
    libhowardhinnant-date-dev libmicroprofile-dev libspdlog-dev re2c flex

build=build/linux-release
mkdir -p "$build"
{ cmake --preset linux-release -DVEK_BUILD_TESTS=OFF -DVEK_BUILD_BENCHMARKS=ON &&
    cmake --build "$build"; } >"$build/build.log" 2>&1 || { cat "$build/build.log"; exit 1; }

"$build/bin/FrameworkUtilitiesBenchmarks" --benchmark_filter="${1:-.}" --benchmark_repetitions=9 \
    --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true --benchmark_format=json \
    2>/dev/null | python3 benchmarks/ratios.py
[ $# -eq 0 ] || exit 0

echo
document=$build/settings-100MB.xml
"$build/bin/MemoryProbe" make "$document"
for reader in ours expat libxml2 orcus rapidxml; do "$build/bin/MemoryProbe" "$reader" "$document"; done
rm "$document"
echo
"$build/bin/LinearityProbe"
