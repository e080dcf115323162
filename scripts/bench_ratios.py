#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Prints the races of Google Benchmark results as ratios of medians, and writes the page of them.

usage: bench_ratios.py [--page FILE] RESULT.json...

A benchmark is named "<area>/<race>/<contestant>"; the contestants whose name begins with "PYX" are ours.
"""
import argparse
import collections
import json
import pathlib
import platform
import re
import statistics
import subprocess
import sys
import typing

from bench_table import TABLE, Kind

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
MILLISECOND = 1e6


class Row(typing.NamedTuple):
    race: str
    ours: str
    peer: str
    our_time: str
    peer_time: str
    ratio: str
    spread: str
    goal: str
    verdict: str


def load(paths):
    """The contexts of the runs, and (race, threads) -> contestant -> real times in ns, by repetition."""
    contexts = []
    races = collections.defaultdict(lambda: collections.defaultdict(dict))
    for path in paths:
        result = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
        contexts.append(result["context"])
        for run in result["benchmarks"]:
            if run.get("run_type") != "iteration" or run.get("error_occurred"):
                continue
            area, race, contestant, *rest = run["run_name"].split("/")
            threads = next((word for word in rest if re.match(r"threads:\d+$", word)), "")
            time = run["real_time"] * NANOSECONDS[run["time_unit"]]
            races[(f"{area}/{race}", threads)][contestant][run["repetition_index"]] = time
    return contexts, {race: {name: [times[i] for i in sorted(times)] for name, times in contestants.items()}
                      for race, contestants in races.items()}


def show(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def quartiles(values):
    if len(values) < 3:
        return ""
    low, _, high = statistics.quantiles(values, n=4, method="inclusive")
    return f"{low:.2f} – {high:.2f}"


def compare(record, ours, theirs):
    """The cells behind the times: ratio, its spread, goal and verdict."""
    our_time, their_time = statistics.median(ours), statistics.median(theirs)
    if record.kind is Kind.DIFFERENCE:
        figure = (our_time - their_time) / MILLISECOND
        text = f"{figure:+.2f} ms"
        spread = quartiles([(mine - other) / MILLISECOND for mine, other in zip(ours, theirs)])
    else:
        figure = our_time / their_time
        text = f"{figure:.2f}"
        spread = quartiles([mine / other for mine, other in zip(ours, theirs)])
    if record.kind is Kind.TIME:
        figure = our_time / MILLISECOND
    if record.goal is None:
        return text, spread, "–", ""
    goal = f"{record.goal:g}" + ("" if record.kind is Kind.RATIO else " ms")
    return text, spread, goal, "holds" if figure <= record.goal else "missed"


def peers_of(race):
    return [record for record in TABLE
            if record.race == race and record.kind in (Kind.RATIO, Kind.DIFFERENCE, Kind.TIME)]


def floor_of(race):
    return next(record for record in TABLE if record.race == race and record.kind is Kind.FLOOR)


def rows_of(race, threads, contestants):
    for ours in sorted(name for name in contestants if name.startswith("PYX")):
        for record in peers_of(race):
            if record.contestant in contestants:
                theirs = contestants[record.contestant]
                yield Row(f"{race} {threads}".strip(), ours, record.contestant,
                          show(statistics.median(contestants[ours])), show(statistics.median(theirs)),
                          *compare(record, contestants[ours], theirs))


def floor_text(race, contestants):
    record = floor_of(race)
    if not record.contestant:
        return record.description
    if record.contestant not in contestants:
        return f"not measured: {record.description}"
    return f"{show(statistics.median(contestants[record.contestant]))}: {record.description}"


def faults(races):
    """Where table and results differ; peers that are not installed are missing rightly."""
    expected = {(record.race, record.contestant) for record in TABLE if record.contestant}
    measured = {(race, name) for (race, _), names in races.items() for name in names}
    ours = {race for race, name in measured if name.startswith("PYX")}
    return ([f"not measured: {race}" for race in sorted({race for race, _ in expected} - ours)]
            + [f"not measured: {race}/{name}" for race, name in sorted(expected - measured) if race in ours]
            + [f"not in the table: {race}/{name}" for race, name in sorted(measured - expected)
               if not name.startswith("PYX")])


def print_races(races):
    rows = [Row("race", "ours", "peer", "ours", "peer's", "ratio", "quartiles", "goal", "")]
    floors = []
    for (race, threads), contestants in sorted(races.items()):
        rows += rows_of(race, threads, contestants)
        floors.append((f"{race} {threads}".strip(), floor_text(race, contestants)))
    for table in (rows, [("race", "floor"), *floors]):
        widths = [max(map(len, column)) for column in zip(*table)]
        for row in table:
            print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())
        print()


# The page

INTRODUCTION = """\
# Benchmarks

Written by `scripts/bench.sh`; do not edit. What misses its goal is explained among the [figures](figures.md).

A time is the median of {repetitions} repetitions, between which all contestants of a program take turns in random
order. "Ratio" is our time over the peer's: below 1 we are faster. It holds on other machines, the times do not.
Where it says "+", it is the difference of the two. "Quartiles" are those of the single ratios, our n-th repetition
over the peer's n-th: half of them lie between; when they lie far apart, or on both sides of the goal, the machine was
not quiet. "Goal" is the highest ratio, difference, or time of ours ("ms") that is good enough; a peer without one is
there for the record. "Floor" is what the work costs at least.

| | |
|---|---|
{machine}
"""


def output_of(*command):
    try:
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()[0].strip()
    except (OSError, subprocess.CalledProcessError, IndexError):
        return "unknown"


def first_match(path, pattern):
    try:
        found = re.search(pattern, pathlib.Path(path).read_text(encoding="utf-8"), re.MULTILINE)
    except OSError:
        found = None
    return found.group(1) if found else "unknown"


def load_text(loads, cores):
    if not loads:
        return "unknown"
    text = f"{min(loads):.1f} to {max(loads):.1f}"
    # The benchmarks themselves keep one core busy, and some of them two.
    return text if max(loads) <= cores + 1 else f"**{text}: other programs ran, do not trust the verdicts below**"


def machine(contexts, build):
    processor = first_match("/proc/cpuinfo", r"^model name\s*: (.+)$")
    system = first_match("/etc/os-release", r'^PRETTY_NAME="(.+)"$')
    compiler = first_match(build / "CMakeCache.txt", r"^CMAKE_CXX_COMPILER:\w+=(.+)$")
    loads = [context["load_avg"][0] for context in contexts if context.get("load_avg")]
    return {
        "Processor": f"{processor}, {contexts[0]['num_cpus']} cores",
        "System": f"{system}, Linux {platform.release()}",
        "Compiler": f"{output_of(compiler, '--version')}, release build",
        "Qt": output_of("pkg-config", "--modversion", "Qt5Core"),
        "Date": min(context["date"] for context in contexts)[:10],
        "Load when the programs began": load_text(loads, contexts[0]["num_cpus"]),
    }


def area_section(area, races):
    yield f"\n## {area.capitalize()}\n"
    for record in (record for record in TABLE if record.kind is Kind.RACE and record.race.startswith(f"{area}/")):
        yield f"**{record.description}.**"
        runs = [(threads, contestants) for (race, threads), contestants in sorted(races.items())
                if race == record.race]
        descriptions = {peer.contestant: peer.description for peer in peers_of(record.race)}
        floors = []
        lines = []
        for threads, contestants in runs:
            suffix = f", {threads.replace(':', ' ')}" if threads else ""
            floors.append(floor_text(record.race, contestants) + suffix)
            for row in rows_of(record.race, threads, contestants):
                peer = f"{row.peer}: {descriptions[row.peer]}"
                verdict = f"**{row.verdict}**" if row.verdict == "missed" else row.verdict
                lines.append(f"| {row.ours}{suffix} | {row.our_time} | {peer} | {row.peer_time} "
                             f"| {row.ratio} | {row.spread} | {row.goal} | {verdict} |")
        yield f"Floor: {'; '.join(floors)}.\n" if floors else "Not measured.\n"
        if lines:
            yield "| Ours | | Peer | | Ratio | Quartiles | Goal | |\n|---|--:|---|--:|--:|--:|--:|---|"
            yield from lines
            yield ""


def page(contexts, races, build):
    repetitions = max(len(times) for contestants in races.values() for times in contestants.values())
    facts = "\n".join(f"| {name} | {value} |" for name, value in machine(contexts, build).items())
    lines = [INTRODUCTION.format(repetitions=repetitions, machine=facts)]
    for area in dict.fromkeys(record.race.split("/")[0] for record in TABLE):
        lines += area_section(area, races)
    return "\n".join(lines).rstrip() + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--page", type=pathlib.Path, help="writes the page; the results must be of all races")
    parser.add_argument("--build", type=pathlib.Path, default=pathlib.Path("build/release"))
    parser.add_argument("results", nargs="+", type=pathlib.Path)
    arguments = parser.parse_args()
    contexts, races = load(arguments.results)
    if not races:
        sys.exit("bench_ratios.py: nothing was measured")
    print_races(races)
    if arguments.page:
        for fault in faults(races):
            print(fault, file=sys.stderr)
        arguments.page.write_text(page(contexts, races, arguments.build), encoding="utf-8")
        print(f"written: {arguments.page}")


if __name__ == "__main__":
    main()
