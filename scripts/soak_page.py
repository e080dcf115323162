#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Puts the result of a soak into docs/soak.md, with a picture of its memory, and prints it.

usage: soak_page.py SUMMARY SAMPLES
"""
import csv
import datetime
import pathlib
import platform
import re
import subprocess
import sys

DOCS = pathlib.Path(__file__).resolve().parent.parent / "docs"
BEGIN, END = "<!-- result -->", "<!-- end of the result -->"
CURVES = {"private dirty KiB": "#0a66c2", "heap in use KiB": "#c2570a"}
WIDTH, HEIGHT, MARGIN = 720, 240, 48


def machine():
    """The processor as the system names it, how many of them, and the versions."""
    model = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    name = model.group(1) if model else platform.machine()
    cores = len(re.findall(r"^processor", pathlib.Path("/proc/cpuinfo").read_text(), re.M))
    qt = subprocess.run(["qmake", "-qt=5", "-query", "QT_VERSION"], capture_output=True, text=True, check=False)
    return f"{name}, {cores} cores, Qt {qt.stdout.strip() or '5.15'}"


def picture(samples):
    """Memory over time as an SVG."""
    seconds = [float(row["seconds"]) for row in samples]
    highest = max(float(row[name]) for row in samples for name in CURVES) / 1024
    top = -(-highest // 10) * 10  # in MiB

    def x(second):
        return MARGIN + (WIDTH - 2 * MARGIN) * second / max(seconds)

    def y(mebibytes):
        return HEIGHT - MARGIN - (HEIGHT - 2 * MARGIN) * mebibytes / top

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif"'
             ' font-size="12">', f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#ffffff"/>']
    for value in (0, top / 2, top):
        parts.append(f'<path d="M{MARGIN} {y(value):.1f}H{WIDTH - MARGIN}" stroke="#cccccc"/>'
                     f'<text x="{MARGIN - 6}" y="{y(value) + 4:.1f}" text-anchor="end">{value:g}</text>')
    for minute in range(0, int(max(seconds) / 60) + 1, 3):
        parts.append(f'<text x="{x(60 * minute):.1f}" y="{HEIGHT - MARGIN + 18}" text-anchor="middle">{minute}</text>')
    for index, (name, colour) in enumerate(CURVES.items()):
        points = " ".join(f"{x(float(row['seconds'])):.1f},{y(float(row[name]) / 1024):.1f}" for row in samples[::3])
        parts.append(f'<polyline points="{points}" fill="none" stroke="{colour}"/>'
                     f'<text x="{MARGIN + 170 * index}" y="20" fill="{colour}">{name.replace("KiB", "(MiB)")}</text>')
    parts.append(f'<text x="{WIDTH - MARGIN}" y="20" text-anchor="end">minutes</text></svg>\n')
    return "\n".join(parts)


def main():
    """See the top of the file."""
    summary_path, samples_path = sys.argv[1:]
    summary = pathlib.Path(summary_path).read_text()
    today = datetime.datetime.now(datetime.timezone.utc).date().isoformat()
    result = f"{today}, {machine()}.\n\n{summary}"
    with open(samples_path, newline="") as file:
        samples = list(csv.DictReader(file))
    (DOCS / "images" / "soak.svg").write_text(picture(samples))
    page = DOCS / "soak.md"
    before, rest = page.read_text().split(BEGIN)
    after = rest.split(END)[1]
    page.write_text(f"{before}{BEGIN}\n{result}\n![Memory over time](images/soak.svg)\n{END}{after}")
    print(result)


main()
