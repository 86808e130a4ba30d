#!/usr/bin/env python3
"""Counts the instructions of one round of every benchmark under callgrind, each in a process of its own.

Usage: instructions.py PROGRAM [--check | --update | --json FILE] [FILTER]

Prints instructions a round and a byte or item, and the ratio of ours to the peer's. --check compares ours with
instructions.txt and fails, naming the rows, where one grew by more than a tenth; --update writes that file anew. --json
keeps everything for report.py.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys

COUNTS = pathlib.Path(__file__).with_name("instructions.txt")
TOLERANCE = 1.10
NOT_COUNTED = {  # what is not counted, and why
    r"^XmlRead100MB/": "the work of XmlRead10MB; its time is that of memory",
    r"/10000(/|$)": "the work of a thousand, ten times; making them takes minutes here",
    r"^MeasuredScope/": "reads the system's clock, which valgrind replaces by a system call",
    r"^LogToFile/": "waits for the file system and writes the time of day",
}
# Lazy binding would count the linker. Nothing else of the caller's environment may move the stack.
ENVIRONMENT = {"LC_ALL": "C.UTF-8", "LD_BIND_NOW": "1", "PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "offscreen"}


def list_rows(program):
    return subprocess.run([program, "--benchmark_list_tests"], stdout=subprocess.PIPE, check=True,
                          text=True).stdout.split()


def count(program, row):
    """Instructions of one round, and how many bytes or items it handles, if it says so."""
    run = subprocess.run(
        ["valgrind", "--tool=callgrind", "--instr-atstart=no", "--callgrind-out-file=/dev/null", program,
         "--benchmark_filter=^" + re.escape(row) + "$", "--benchmark_min_time=0.000000001",
         "--benchmark_repetitions=2", "--benchmark_format=json"],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env=ENVIRONMENT)
    collected = re.search(r"Collected : (\d+)", run.stderr)
    try:
        result = json.loads(run.stdout)["benchmarks"][0]
    except (ValueError, LookupError):
        raise RuntimeError(f"{row}: no result\n{run.stderr}") from None
    if run.returncode != 0 or collected is None or result.get("error_occurred"):
        raise RuntimeError(f"{row}: {result.get('error_message', run.stderr)}")
    seconds = result["cpu_time"] * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}[result["time_unit"]]
    size, unit = 0, ""
    for rate, unit in (("bytes_per_second", "B"), ("items_per_second", "item")):
        if rate in result:
            size = round(result[rate] * seconds)
            break
    return int(collected.group(1)) // result["iterations"], size, unit


def count_all(program, rows):
    empty = count(program, "EmptyRound")[0]

    def count_and_tell(row):
        result = count(program, row)
        print(row, file=sys.stderr)
        return result

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        counts = pool.map(count_and_tell, rows)
        return {row: (instructions - empty, size, unit) for row, (instructions, size, unit) in zip(rows, counts)}


def get_own(row, all_rows):
    """The row of ours in the same workload; a row without peers is its own."""
    own = row.rsplit("/", 1)[0] + "/ours"
    return own if own in all_rows else row


def print_table(counts, all_rows):
    print("| row | instructions a round | a byte or item | ours / this |")
    print("| --- | ---: | ---: | ---: |")
    for row, (instructions, size, unit) in sorted(counts.items()):
        each = f"{instructions / size:.2f} / {unit}" if size else ""
        own = get_own(row, all_rows)
        ratio = f"{counts[own][0] / instructions:.2f}" if own != row and own in counts else ""
        print(f"| {row} | {instructions} | {each} | {ratio} |")


def read_counts():
    lines = [line.split() for line in COUNTS.read_text().splitlines() if line and not line.startswith("#")]
    return {row: int(instructions) for instructions, row in lines}


def check(own, is_whole):
    """Prints what is wrong with our counts and answers whether nothing is."""
    known = read_counts()
    faults = [f"{row}: not in {COUNTS.name}; --update writes it" for row in own if row not in known]
    if is_whole:
        faults += [f"{row}: in {COUNTS.name}, but there is no such row" for row in known if row not in own]
    faults += [f"{row}: {known[row]} -> {instructions} instructions, {instructions / known[row] - 1:+.0%}"
               for row, instructions in own.items() if row in known and instructions > TOLERANCE * known[row]]
    print("\n".join(faults) or f"{len(own)} rows of ours, none grew by more than {TOLERANCE - 1:.0%}")
    return not faults


def update(own, is_whole):
    counts = own if is_whole else read_counts() | own
    lines = [f"{instructions:>12} {row}\n" for row, instructions in sorted(counts.items())]
    COUNTS.write_text("# Instructions of one round of ours, on Linux. `benchmarks/run.sh --instructions --update` writes "
                      "this file.\n" + "".join(lines))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("filter", nargs="?", default="")
    task = parser.add_mutually_exclusive_group()
    task.add_argument("--check", action="store_true", help="ours only, compared with instructions.txt")
    task.add_argument("--update", action="store_true", help="ours only, written to instructions.txt")
    task.add_argument("--json", metavar="FILE")
    options = parser.parse_intermixed_args()

    all_rows = list_rows(options.program)
    rows = [row for row in all_rows
            if re.search(options.filter, row) and not any(re.search(pattern, row) for pattern in NOT_COUNTED)]
    if options.check or options.update:
        rows = [row for row in rows if get_own(row, all_rows) == row]
    if not rows:
        sys.exit(f"No row matches {options.filter!r}")
    counts = count_all(options.program, rows)
    print_table(counts, all_rows)
    if options.json:
        keys = ("instructions", "amount", "unit")
        pathlib.Path(options.json).write_text(json.dumps({row: dict(zip(keys, entry)) for row, entry in counts.items()}))
    own = {row: counts[row][0] for row in rows if get_own(row, all_rows) == row}
    if options.update:
        update(own, not options.filter)
    if options.check and not check(own, not options.filter):
        sys.exit(1)


main()
