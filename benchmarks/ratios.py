#!/usr/bin/env python3
"""Prints the ratios of medians, ours to each peer, from the JSON output of the benchmarks as a table."""
import json
import sys

medians = {}
for run in json.load(sys.stdin)["benchmarks"]:
    if run.get("aggregate_name") == "median":
        workload, contestant = run["run_name"].rsplit("/", 1)
        medians.setdefault(workload, {})[contestant] = run["cpu_time"], run.get("bytes_per_second", 0) / 1e6

print("| workload | peer | ours / peer | ours | peer |")
print("| --- | --- | ---: | ---: | ---: |")
for workload, contestants in medians.items():
    own_time, own_speed = contestants.pop("ours")
    for peer, (time, speed) in contestants.items():
        print(f"| {workload} | {peer} | {own_time / time:.2f} | {own_speed:.0f} MB/s | {speed:.0f} MB/s |")
