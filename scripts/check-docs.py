#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Checks that the pages tell the truth; prints what is wrong as "file:line: what" and fails on anything.

check-docs.py [ROOT]       checks README.md and docs/*.md of a source tree (default: that of this script):
                           - every C++ block is a part of a file that is compiled (examples/, or the first application
                             of the README, which examples/CMakeLists.txt compiles), apart from its indentation
                           - relative links lead to files, and their anchors to headings
                           - every public header is named in some page
check-docs.py --self-test  checks that every kind of fault is found in a tree made for it
"""
import re
import sys
import tempfile
from pathlib import Path

FENCE = re.compile(r"^(```+)\s*(\w*)\s*$")
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#{1,6}\s+(.*?)\s*#*$")
CODE = re.compile(r"`[^`]*`")
COMPILED_SUFFIXES = (".cpp", ".h")


def without_indentation(lines):
    """Without what all lines are indented by, and without blanks at their ends."""
    lines = [line.rstrip() for line in lines]
    indentation = min((len(line) - len(line.lstrip()) for line in lines if line), default=0)
    return [line[indentation:] for line in lines]


def is_part(block, source):
    """Whether the lines stand one after the other in the source."""
    block = without_indentation(block)
    return any(without_indentation(source[start:start + len(block)]) == block
               for start in range(len(source) - len(block) + 1) if source[start].strip() == block[0].strip())


def anchor(heading):
    """As the sites that show the pages make it."""
    heading = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading).replace("`", "").lower()
    return re.sub(r"[^\w\- ]", "", heading).replace(" ", "-")


class Page:
    def __init__(self, path):
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        self.blocks = []  # (line of its first line, language, lines)
        self.anchors = set()
        self.links = []  # (line, target)
        fence = None
        for number, line in enumerate(self.text.splitlines(), 1):
            if match := FENCE.match(line):
                if fence is None:
                    fence = match.group(1)
                    self.blocks.append((number + 1, match.group(2), []))
                elif line.strip() == fence:
                    fence = None
            elif fence is not None:
                self.blocks[-1][2].append(line)
            else:
                self.read_line(number, line)

    def read_line(self, number, line):
        if match := HEADING.match(line):
            self.anchors.add(anchor(match.group(1)))
        self.links += [(number, target) for target in LINK.findall(CODE.sub("", line))]


class Checker:
    def __init__(self, root):
        self.root = root
        self.problems = []
        paths = [root / "README.md", *sorted((root / "docs").glob("*.md"))]
        self.pages = {path.resolve(): Page(path) for path in paths if path.is_file()}
        self.sources = [path.read_text(encoding="utf-8").splitlines()
                        for path in sorted((root / "examples").rglob("*")) if path.suffix in COMPILED_SUFFIXES]

    def report(self, path, line, text):
        self.problems.append(f"{path.relative_to(self.root)}:{line}: {text}")

    def check(self):
        for page in self.pages.values():
            self.check_blocks(page)
            self.check_links(page)
        self.check_headers()
        return self.problems

    def check_blocks(self, page):
        blocks = [(line, lines) for line, language, lines in page.blocks if language == "cpp"]
        if page.path.name == "README.md" and blocks:
            self.sources.append(blocks.pop(0)[1])  # the first application
        for line, lines in blocks:
            if not lines or not any(is_part(lines, source) for source in self.sources):
                self.report(page.path, line, "this code is in no example")

    def check_links(self, page):
        for line, target in page.links:
            if re.match(r"[a-z]+:", target):
                continue
            name, _, fragment = target.partition("#")
            path = (page.path.parent / name).resolve() if name else page.path.resolve()
            if not path.exists():
                self.report(page.path, line, f"there is no {name}")
            elif fragment and path.suffix == ".md" and path not in self.pages:
                self.report(page.path, line, f"{name} is no page, so that its anchors are not known")
            elif fragment and path in self.pages and fragment not in self.pages[path].anchors:
                self.report(page.path, line, f"there is no heading for {target}")

    def check_headers(self):
        words = set(re.findall(r"\w+", " ".join(page.text for page in self.pages.values())))
        for header in sorted((self.root / "include").rglob("*.h")):
            if header.stem not in words:
                self.report(header, 1, "is named in no page")


SELF_TEST_FILES = {
    "README.md": "# Good\n```cpp\nint main() { return 0; }\n```\n[a](docs/a.md#the-code-x) [b](docs/b.md)\n",
    "docs/a.md": "# The `code`: x\n```cpp\none();\n\n  two();\n```\n[none](c.md)\n[head](#nowhere) [r](../README.md#good)\n"
                 "`[no](link.md)` [web](https://example.com/x.md) Named\n",
    "docs/b.md": "```cpp\none();\ntwo();\n```\n```cpp\n    return 0;\n```\n```\nnot C++\n```\n"
                 "```cpp\nint main() { return 0; }\n```\n",
    "examples/x/main.cpp": "void f()\n{\n    one();\n\n      two();\n    return 0;\n}\n",
    "examples/x/notes.txt": "one();\ntwo();\n",
    "include/room/Named.h": "",
    "include/room/Forgotten.h": "",
}
SELF_TEST_PROBLEMS = [
    ("docs/a.md:7:", "no c.md"),
    ("docs/a.md:8:", "no heading for #nowhere"),
    ("docs/b.md:2:", "in no example"),
    ("include/room/Forgotten.h:1:", "in no page"),
]


def self_test():
    with tempfile.TemporaryDirectory() as directory:
        root = Path(directory).resolve()
        for name, text in SELF_TEST_FILES.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        problems = Checker(root).check()
    matched = [any(p.startswith(where) and what in p for p in problems) for where, what in SELF_TEST_PROBLEMS]
    print("\n".join(problems))
    print(f"{sum(matched)} of {len(SELF_TEST_PROBLEMS)} faults found, {len(problems)} reported")
    return 0 if all(matched) and len(problems) == len(SELF_TEST_PROBLEMS) else 1


def main(arguments):
    if arguments == ["--self-test"]:
        return self_test()
    if len(arguments) > 1 or (arguments and arguments[0].startswith("-")):
        print(__doc__, file=sys.stderr)
        return 2
    root = Path(arguments[0] if arguments else Path(__file__).parent.parent).resolve()
    problems = Checker(root).check()
    for problem in problems:
        print(problem)
    if not problems:
        print("check-docs.py: nothing wrong.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
