#!/usr/bin/env python3
"""Prints what was measured as tables, or writes them into README.md.

Usage: report.py [--times FILE] [--instructions FILE] [--windows FILE] [--readme MACHINE]

FILES are the JSON output of the benchmarks with medians, on Linux and on Windows, and that of instructions.py. Ratios are
ours to the peer's, or Windows to Linux; one above its goal (goals.txt) is bold. In README.md a table stands between
<!-- rows PATTERN --> (the workloads that match), <!-- alone PATTERN --> (rows without a peer) or <!-- windows --> and
<!-- end -->.
"""
import argparse
import json
import pathlib
import re

HERE = pathlib.Path(__file__).parent
# Under Wine, where the allocator is five times slower, rows that allocate may take twice the time, others 1.3 times.
WINDOWS_GOAL, WINDOWS_GOAL_ALLOCATING = 1.3, 2.0
ALLOCATES_NOTHING = re.compile(
    r"^(Assign|Calendar|ColorHash|Date(?!FormatGerman)|EqualsIgnoreCase|Find|Fnv1a|(Full|Money)(?!FormatFresh)"
    r"|IntRange(Find|Walk)|LogToThreeSinks|MeasuredScope|Obtain)")


def read_goals():
    lines = [line.split() for line in (HERE / "goals.txt").read_text().splitlines() if line and line[0] != "#"]
    return {row: float(goal) for row, goal in lines}


def read_times(path):
    """Medians by the row's name."""
    runs = json.loads(pathlib.Path(path).read_text())["benchmarks"] if path else []
    faults = {run["run_name"]: run["error_message"] for run in runs if run.get("error_occurred")}
    if faults:
        raise SystemExit("\n".join(f"{row}: {message}" for row, message in faults.items()))
    return {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}


def get_seconds(run):
    clock = "real_time" if run["run_name"].endswith("/real_time") else "cpu_time"
    return run[clock] * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}[run["time_unit"]]


def show_speed(run):
    if "bytes_per_second" in run:
        return f"{run['bytes_per_second'] / 1e6:.0f} MB/s"
    seconds = 1 / run["items_per_second"] if "items_per_second" in run else get_seconds(run)
    for unit, size in (("ns", 1e-9), ("us", 1e-6), ("ms", 1e-3)):
        if seconds < 1000 * size or unit == "ms":
            return f"{seconds / size:.3g} {unit}"


def show_ratio(ratio, goal):
    if ratio is None:
        return ""
    text = f"{ratio:.2f}"
    return f"**{text}**" if goal is not None and float(text) > goal else text


def divide(values, row, other):
    return values[row] / values[other] if row in values and other in values else None


class Report:
    def __init__(self, times, instructions, windows):
        self.runs = times
        self.windows = windows
        self.seconds = {row: get_seconds(run) for row, run in times.items()}
        self.counts = {row: entry["instructions"] for row, entry in instructions.items()}
        self.amounts = {row: entry for row, entry in instructions.items() if entry["amount"]}
        self.goals = read_goals()
        self.rows = sorted({*times, *instructions})
        self.own = {row for row in self.rows if self.get_own(row) == row}

    def get_own(self, row):
        """The row of ours in the same workload; a row without peers is its own."""
        own = row.rsplit("/", 1)[0] + "/ours"
        return own if own in self.rows else row

    def show_run(self, row):
        return show_speed(self.runs[row]) if row in self.runs else ""

    def show_count(self, row):
        if row not in self.counts:
            return ""
        entry = self.amounts.get(row)
        if entry is None:
            return f"{self.counts[row]}"
        return f"{self.counts[row] / entry['amount']:.3g}/{entry['unit']}"

    def show_contests(self, pattern):
        lines = ["| workload | peer | time | goal | instructions | ours | peer's | our instructions |",
                 "| --- | --- | ---: | ---: | ---: | ---: | ---: | ---: |"]
        for row in self.rows:
            own = self.get_own(row)
            if row == own or not re.search(pattern, row):
                continue
            workload, peer = row.rsplit("/", 1)
            goal = self.goals.get(row)
            lines.append(f"| {workload} | {peer} | {show_ratio(divide(self.seconds, own, row), goal)} "
                         f"| {goal if goal is not None else ''} | {show_ratio(divide(self.counts, own, row), None)} "
                         f"| {self.show_run(own)} | {self.show_run(row)} | {self.show_count(own)} |")
        return lines

    def show_alone(self, pattern):
        lines = ["| row | time | instructions |", "| --- | ---: | ---: |"]
        alone = [row for row in self.rows if row in self.own and not row.endswith("/ours")]
        return lines + [f"| {row} | {self.show_run(row)} | {self.show_count(row)} |"
                        for row in alone if re.search(pattern, row)]

    def show_windows(self):
        lines = ["| row | Windows / Linux | goal | Windows | Linux |", "| --- | ---: | ---: | ---: | ---: |"]
        for row in sorted(self.windows.keys() & self.seconds.keys()):
            goal = WINDOWS_GOAL if ALLOCATES_NOTHING.search(row) else WINDOWS_GOAL_ALLOCATING
            if row not in self.own:  # the clock, which is not ours
                goal = None
            ratio = get_seconds(self.windows[row]) / self.seconds[row]
            lines.append(f"| {row.removesuffix('/ours')} | {show_ratio(ratio, goal)} | {goal or ''} "
                         f"| {show_speed(self.windows[row])} | {show_speed(self.runs[row])} |")
        return lines

    def show(self, kind, pattern):
        if kind == "windows":
            return self.show_windows()
        return self.show_contests(pattern) if kind == "rows" else self.show_alone(pattern)


def write_readme(report, machine):
    readme = HERE / "README.md"
    text = re.sub(r"(?s)<!-- (rows|alone|windows) ?(\S*) -->\n.*?<!-- end -->",
                  lambda match: "\n".join([match[0].split("\n")[0], *report.show(match[1], match[2]), "<!-- end -->"]),
                  readme.read_text())
    text = re.sub(r"(?s)<!-- machine -->\n.*?<!-- end -->", f"<!-- machine -->\n{machine}\n<!-- end -->", text)
    readme.write_text(text)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--times")
    parser.add_argument("--instructions")
    parser.add_argument("--windows")
    parser.add_argument("--readme", metavar="MACHINE")
    options = parser.parse_args()
    instructions = json.loads(pathlib.Path(options.instructions).read_text()) if options.instructions else {}
    report = Report(read_times(options.times), instructions, read_times(options.windows))
    if options.readme:
        write_readme(report, options.readme)
    elif options.windows:
        print("\n".join(report.show_windows()))
    else:
        for lines in (report.show_contests(""), report.show_alone("")):
            if len(lines) > 2:
                print("\n".join(lines) + "\n")


main()
