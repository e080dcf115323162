#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Prints the races of Google Benchmark results as ratios of medians.

usage: bench_ratios.py RESULT.json...

A benchmark is named "<area>/<race>/<contestant>"; the contestants whose name begins with "PYX" are ours.
"""
import collections
import json
import re
import statistics
import sys

# Highest ratio that is good enough, by race and peer; "ms" goals are differences in milliseconds.
GOALS = {
    ("diagnostics/disabled message", "qCDebug"): 1.5,
    ("diagnostics/trace line to a file", "spdlog"): 1.0,
    ("broker/topObject", "by hand"): 1.3,
    ("files/writes of 64 KiB", "QFile"): 1.05,
    ("files/writes of 64 KiB", "spdlog"): 1.0,
    ("files/lines of 100 bytes", "QFile"): 1.11,
    ("files/lines of 100 bytes", "spdlog"): 1.0,
    ("store/open, read one key", "QSettings"): 1.1,
    ("security/encrypt 16 bytes", "by hand"): 1.3,
    ("security/encrypt 1 MB", "by hand"): 1.3,
    ("security/decrypt 16 bytes", "by hand"): 1.3,
    ("security/decrypt 1 MB", "by hand"): 1.3,
    ("settings/read", "Ini"): 0.8,
    ("settings/sync", "Ini"): 1.0,
    ("settings/sync", "KConfig"): 1.0,
    ("statushash/binary save", "QDataStream"): 1.3,
    ("statushash/binary restore", "QDataStream"): 1.3,
    ("memory/acquire and release 64 KiB", "pmr"): 1.0,
    ("memory/acquire and release 64 KiB", "pmr allocate_shared"): 1.0,
    ("memory/frame pipeline", "pmr"): 1.2,
    ("memory/frame pipeline", "malloc"): 0.2,
    ("network/receive 128 datagrams", "QUdpSocket"): 1.05,
    ("icons/200 SVG icons at four sizes, cold", "parsed once, rendered"): 1.15,
    ("icons/200 SVG icons at four sizes, cold", "QIcon::fromTheme"): 1.0,
    ("icons/200 SVG icons at four sizes, cold", "KIconLoader"): 1.0,
}
DIFFERENCE_GOALS = {
    ("startup/process", "bare QApplication"): 10.0,
    ("language/switch with 1000 labels", "labels alone"): 16.0,
    # One picture of a screen that shows 60 of them per second, and a quarter of one.
    ("dialog/open with 30 pages", "tree and stack"): 16.0,
    ("dialog/click to page", "tree and stack"): 4.0,
}
TIME_GOALS = {"icons/longest hold while all are cached": 16.0}  # ms, whatever the peer takes
NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def races(paths):
    """(race, threads) -> contestant -> real times in ns."""
    found = collections.defaultdict(lambda: collections.defaultdict(list))
    for path in paths:
        with open(path, encoding="utf-8") as file:
            runs = json.load(file)["benchmarks"]
        for run in runs:
            if run.get("run_type") != "iteration" or run.get("error_occurred"):
                continue
            area, race, contestant, *rest = run["run_name"].split("/")
            threads = next((word for word in rest if re.match(r"threads:\d+$", word)), "")
            time = run["real_time"] * NANOSECONDS[run["time_unit"]]
            found[(f"{area}/{race}", threads)][contestant].append(time)
    return found


def show(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.2f} {unit}"
    return f"{nanoseconds:.2f} ns"


def verdict(race, peer, ours, theirs):
    if (race, peer) in DIFFERENCE_GOALS:
        difference, goal = (ours - theirs) / 1e6, DIFFERENCE_GOALS[(race, peer)]
        return f"+{difference:.2f} ms", f"{goal:g} ms", difference <= goal
    ratio = ours / theirs
    if race in TIME_GOALS:
        return f"{ratio:.2f}", f"{TIME_GOALS[race]:g} ms", ours / 1e6 <= TIME_GOALS[race]
    goal = GOALS.get((race, peer))
    return f"{ratio:.2f}", f"{goal:g}" if goal else "-", goal is None or ratio <= goal


def main():
    rows = [("race", "ours", "peer", "ours", "peer's", "ratio", "goal", "")]
    for (race, threads), contestants in sorted(races(sys.argv[1:]).items()):
        medians = {name: statistics.median(times) for name, times in contestants.items()}
        for ours in sorted(name for name in medians if name.startswith("PYX")):
            for peer in sorted(name for name in medians if not name.startswith("PYX")):
                ratio, goal, good = verdict(race, peer, medians[ours], medians[peer])
                rows.append((f"{race} {threads}".strip(), ours, peer, show(medians[ours]), show(medians[peer]),
                             ratio, goal, "" if good else "missed"))
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


if __name__ == "__main__":
    main()
