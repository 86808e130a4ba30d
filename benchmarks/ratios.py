#!/usr/bin/env python3
"""Prints the ratios of medians, ours to each peer, from the JSON output of the benchmarks as a table."""
import json
import sys

medians = {}
for run in json.load(sys.stdin)["benchmarks"]:
    if run.get("aggregate_name") == "median":
        workload, contestant = run["run_name"].rsplit("/", 1)
        medians.setdefault(workload, {})[contestant] = run


def speed(run):
    if "bytes_per_second" in run:
        return f"{run['bytes_per_second'] / 1e6:.0f} MB/s"
    if "items_per_second" in run:
        return f"{1e9 / run['items_per_second']:.1f} ns"
    return f"{run['cpu_time']:.1f} {run['time_unit']}"


print("| workload | peer | ours / peer | ours | peer |")
print("| --- | --- | ---: | ---: | ---: |")
for workload, contestants in sorted(medians.items()):  # they ran in a random order
    own = contestants.pop("ours")
    for peer, run in contestants.items():
        print(f"| {workload} | {peer} | {own['cpu_time'] / run['cpu_time']:.2f} | {speed(own)} | {speed(run)} |")
