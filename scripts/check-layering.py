#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Checks the layout of the sources; prints every violation as "file:line: what is wrong" and fails on any.

check-layering.py [ROOT]       checks a source tree (default: the one that this script belongs to)
check-layering.py --self-test  checks that every kind of violation is found in a tree made for it
"""
import re
import sys
import tempfile
from pathlib import Path

# A room includes from its own floor's room and from lower floors only.
FLOORS = {
    1: ["platform"],
    2: ["helpers"],
    3: ["diagnostics"],
    4: ["broker"],
    5: ["settings"],
    6: ["application", "memory", "security"],
    7: ["files", "network", "icons", "notifications"],
    8: ["modes", "versions", "dialog"],
    9: ["runtime"],
}
FLOOR_OF_ROOM = {room: floor for floor, rooms in FLOORS.items() for room in rooms}
PRIVATE_ROOMS = {"platform"}

LIBRARY_DIRS = ("include", "source")
CODE_DIRS = LIBRARY_DIRS + ("tests", "examples", "benchmarks", "fuzz", "soak")
SPDX_DIRS = CODE_DIRS + ("cmake", "scripts", "resources", "docs", ".ci")
CODE_SUFFIXES = {".h", ".cpp"}
SPDX_SUFFIXES = CODE_SUFFIXES | {".cmake", ".in", ".sh", ".py"}
SPDX_NAMES = {"CMakeLists.txt", "run"}

COPYRIGHT = "SPDX-FileCopyrightText: 2026 The PYXRuntime developers"
LICENCE = "SPDX-License-Identifier: "
EXAMPLES_LICENCE = "BSD-3-Clause"
LIBRARY_LICENCE = "LGPL-3.0-or-later"

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')
CONDITION = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b(.*)")
SYSTEM_MACRO = re.compile(
    r"\b(Q_OS_\w+|_?_?WIN(?:32|64)(?:__)?|_?_?(?:linux|unix|APPLE|MINGW32|MINGW64|CYGWIN|ANDROID|FreeBSD)(?:__)?"
    r"|_MSC_VER|Q_CC_MSVC|_POSIX_\w+)\b")
SYSTEM_HEADER = re.compile(
    r"^(?:(?:sys|linux|asm|arpa|net|netinet|bits)/.*"
    r"|(?:windows|winsock2?|ws2tcpip|winbase|winuser|windef|winver|wincon|shlobj|shellapi|mmsystem|timeapi|objbase"
    r"|psapi|dbghelp|direct|io|process|unistd|fcntl|dlfcn|pthread|pwd|grp|dirent|poll|termios|mntent|netdb|ifaddrs"
    r"|syslog|spawn|semaphore|sched|utime|execinfo|glob|fnmatch)\.h)$", re.IGNORECASE)
ROOM_CALL = re.compile(r"pyx_add_room\s*\(([^)]*)\)", re.DOTALL)
KEYWORDS = {"ROOM", "HEADERS", "SOURCES"}


def code_files(root, directories):
    for directory in directories:
        for path in sorted((root / directory).rglob("*")):
            if path.is_file() and path.suffix in CODE_SUFFIXES:
                yield path


def code_lines(path):
    """Numbered lines without comments: what is commented out neither includes nor divides."""
    text = path.read_text(encoding="utf-8", errors="replace")
    text = re.sub(r"/\*.*?\*/", lambda match: "\n" * match.group().count("\n"), text, flags=re.DOTALL)
    for number, line in enumerate(text.splitlines(), 1):
        yield number, re.sub(r"(^|\s)//.*", "", line)


class Checker:
    def __init__(self, root):
        self.root = root
        self.problems = []
        self.headers = {}  # file name -> paths of the library's headers of that name
        self.includes = {}  # header -> [(line, header)], within the library
        for path in code_files(root, LIBRARY_DIRS):
            if path.suffix == ".h":
                self.headers.setdefault(path.name, []).append(path)

    def report(self, path, line, text):
        self.problems.append(f"{path.relative_to(self.root)}:{line}: {text}")

    def room_of(self, path):
        parts = path.relative_to(self.root).parts
        return parts[1] if len(parts) > 2 else None

    def is_public(self, path):
        return path.relative_to(self.root).parts[0] == "include"

    def check(self):
        for path in code_files(self.root, LIBRARY_DIRS):
            self.check_room(path)
        for path in code_files(self.root, CODE_DIRS):
            self.check_lines(path)
        self.check_circles()
        self.check_flat_names()
        self.check_room_lists()
        self.check_spdx()
        return self.problems

    def check_room(self, path):
        room = self.room_of(path)
        if room not in FLOOR_OF_ROOM:
            self.report(path, 1, "lies in no room" if room is None else f"lies in an unknown room, {room}")
        elif self.is_public(path) and room in PRIVATE_ROOMS:
            self.report(path, 1, f"the room {room} exports nothing")

    def check_lines(self, path):
        parts = path.relative_to(self.root).parts
        in_platform, in_library = parts[:2] == ("source", "platform"), parts[0] in LIBRARY_DIRS
        for number, line in code_lines(path):
            if include := INCLUDE.match(line):
                if in_library:
                    self.check_include(path, number, include.group(1), in_platform)
            elif not in_platform and (condition := CONDITION.match(line)):
                for macro in SYSTEM_MACRO.findall(condition.group(1)):
                    self.report(path, number, f"divides by system ({macro}) outside of source/platform")

    def check_include(self, path, number, name, in_platform):
        if SYSTEM_HEADER.match(name):
            if not in_platform:
                self.report(path, number, f"includes a header of the operating system, <{name}>")
            return
        targets = self.headers.get(Path(name).name, [])
        # The same name twice is reported elsewhere; for the floors the own room's file is meant.
        target = next((t for t in targets if self.room_of(t) == self.room_of(path)), targets[0] if targets else None)
        if target is None:
            return
        if path.suffix == ".h":
            self.includes.setdefault(path, []).append((number, target))
        if self.is_public(path) and not self.is_public(target):
            self.report(path, number, f"a public header includes {name}, which is not installed")
        own, other = self.room_of(path), self.room_of(target)
        if own == other or own not in FLOOR_OF_ROOM or other not in FLOOR_OF_ROOM:
            return
        own_floor, other_floor = FLOOR_OF_ROOM[own], FLOOR_OF_ROOM[other]
        if other_floor >= own_floor:
            direction = "sideways" if own_floor == other_floor else "upwards"
            self.report(path, number, f"includes {direction}: {name} is in {other} (floor {other_floor}),"
                                      f" this file in {own} (floor {own_floor})")

    def check_circles(self):
        done, trail = set(), []

        def visit(path):
            if path in done:
                return
            trail.append(path)
            for number, target in self.includes.get(path, []):
                if target in trail:
                    circle = trail[trail.index(target):] + [target]
                    names = " -> ".join(header.name for header in circle)
                    self.report(path, number, f"closes a circle of includes: {names}")
                else:
                    visit(target)
            trail.pop()
            done.add(path)

        for path in sorted(self.includes):
            visit(path)

    def check_flat_names(self):
        # One flat directory holds the installed headers; some file systems ignore the case of names.
        seen = {}
        for name in sorted(self.headers):
            for path in self.headers[name]:
                if first := seen.get(name.lower()):
                    self.report(path, 1, f"has the name of {first.relative_to(self.root)}")
                else:
                    seen[name.lower()] = path

    def check_room_lists(self):
        installed = []
        for lists in sorted((self.root / "source").glob("*/CMakeLists.txt")):
            for call in ROOM_CALL.findall(lists.read_text(encoding="utf-8")):
                words, keyword, room = re.sub(r"#.*", "", call).split(), None, None
                for word in words:
                    if word in KEYWORDS:
                        keyword = word
                    elif keyword == "ROOM":
                        room = word
                    elif keyword == "HEADERS":
                        header = self.root / "include" / str(room) / word
                        if header in installed:
                            self.report(lists, 1, f"lists {word} twice: it would be installed twice")
                        installed.append(header)
        for path in code_files(self.root, ["include"]):
            if path not in installed:
                self.report(path, 1, "is not among the HEADERS of its room: it would not be installed")

    def check_spdx(self):
        top = [path for path in (self.root / "CMakeLists.txt",) if path.is_file()]
        below = [path for directory in SPDX_DIRS for path in sorted((self.root / directory).rglob("*"))
                 if path.is_file() and (path.suffix in SPDX_SUFFIXES or path.name in SPDX_NAMES)]
        for path in top + below:
            lines = path.read_text(encoding="utf-8", errors="replace").splitlines()[:3]
            if lines and lines[0].startswith("#!"):
                lines.pop(0)
            in_examples = path.relative_to(self.root).parts[0] == "examples"
            licence = LICENCE + (EXAMPLES_LICENCE if in_examples else LIBRARY_LICENCE)
            if [line.lstrip("/# ").rstrip() for line in lines[:2]] != [COPYRIGHT, licence]:
                self.report(path, 1, f'does not begin with "{COPYRIGHT}" and "{licence}"')


def spdx(mark, licence=LIBRARY_LICENCE):
    return f"{mark} {COPYRIGHT}\n{mark} {LICENCE}{licence}\n"


# What a tree with every kind of violation holds, and what has to be said about it, and nothing else.
SELF_TEST_FILES = {
    "include/diagnostics/Tracer.h": '#include "Store.h"\n',
    "include/settings/Store.h": "",
    "include/settings/Hidden.h": '#include "Inner.h"\n#include "platform/Platform.h"\n',
    "include/settings/Unlisted.h": "",
    "include/platform/Exported.h": "",
    "source/settings/Inner.h": "",
    "source/settings/Store.cpp": '#include "Store.h"\n#include "Platform.h"\n#include <QtCore/QString>\n',
    "source/platform/Platform.h": "#include <windows.h>\n#ifdef Q_OS_WIN\n#endif\n",
    "source/network/Peer.cpp": '#include "Icon.h"\n#include <sys/socket.h>\n// #include "Start.h"\n',
    "source/icons/Icon.h": '/*\n#include "Start.h"\n*/\n#if defined(_WIN32) && !defined(Q_CC_GNU)\n#endif\n',
    "source/icons/ICON.h": "",
    "source/broker/A.h": '#include "B.h"\n',
    "source/broker/B.h": '#include "A.h"\n',
    "source/runtime/Start.h": "",
    "source/attic/Old.cpp": "",
    "source/Loose.cpp": "",
    "tests/settings/tst_Store.cpp": '#include "Start.h"\n#include <unistd.h>\n#ifndef __linux__\n#endif\n',
}
SELF_TEST_CMAKE = {
    "source/diagnostics/CMakeLists.txt": "pyx_add_room(ROOM diagnostics HEADERS Tracer.h Tracer.h SOURCES x.cpp)\n",
    "source/settings/CMakeLists.txt": "pyx_add_room(ROOM settings\n"
                                      "    HEADERS Store.h Hidden.h # Unlisted.h\n    SOURCES Inner.h)\n",
    "source/platform/CMakeLists.txt": "pyx_add_room(ROOM platform HEADERS Exported.h SOURCES Platform.h)\n",
}
SELF_TEST_VIOLATIONS = [
    ("include/diagnostics/Tracer.h:3:", "upwards: Store.h"),
    ("include/settings/Hidden.h:3:", "Inner.h, which is not installed"),
    ("include/settings/Hidden.h:4:", "Platform.h, which is not installed"),
    ("include/settings/Unlisted.h:1:", "not among the HEADERS"),
    ("include/platform/Exported.h:1:", "exports nothing"),
    ("source/diagnostics/CMakeLists.txt:1:", "Tracer.h twice"),
    ("source/network/Peer.cpp:3:", "sideways: Icon.h"),
    ("source/network/Peer.cpp:4:", "sys/socket.h"),
    ("source/icons/Icon.h:6:", "_WIN32"),
    ("source/icons/Icon.h:1:", "name of source/icons/ICON.h"),
    ("source/broker/B.h:3:", "circle of includes: A.h -> B.h -> A.h"),
    ("source/attic/Old.cpp:1:", "unknown room, attic"),
    ("source/Loose.cpp:1:", "no room"),
    ("tests/settings/tst_Store.cpp:5:", "__linux__"),
    ("source/runtime/Plain.h:1:", "does not begin with"),
    ("examples/first/main.cpp:1:", EXAMPLES_LICENCE),
    ("scripts/tool.sh:1:", "does not begin with"),
]


def self_test():
    with tempfile.TemporaryDirectory() as directory:
        root = Path(directory)

        def write(name, text):
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")

        for name, text in SELF_TEST_FILES.items():
            write(name, spdx("//") + text)
        for name, text in SELF_TEST_CMAKE.items():
            write(name, spdx("#") + text)
        write("source/runtime/Plain.h", "#pragma once\n")
        write("examples/first/main.cpp", spdx("//"))
        write("examples/first/good.cpp", spdx("//", EXAMPLES_LICENCE))
        write("scripts/tool.sh", "#!/bin/bash\n# A tool\n")
        write("scripts/good.sh", "#!/bin/bash\n" + spdx("#"))

        problems = Checker(root).check()
    missed = [violation for violation in SELF_TEST_VIOLATIONS
              if not any(p.startswith(violation[0]) and violation[1] in p for p in problems)]
    extra = [problem for problem in problems
             if not any(problem.startswith(v[0]) and v[1] in problem for v in SELF_TEST_VIOLATIONS)]
    for where, what in missed:
        print(f"not found: {where} ... {what}")
    for problem in extra:
        print(f"reported, but is no violation: {problem}")
    print(f"{len(SELF_TEST_VIOLATIONS) - len(missed)} of {len(SELF_TEST_VIOLATIONS)} violations found")
    return 1 if missed or extra else 0


def main(arguments):
    if arguments == ["--self-test"]:
        return self_test()
    if len(arguments) > 1 or (arguments and arguments[0].startswith("-")):
        print(__doc__, file=sys.stderr)
        return 2
    root = Path(arguments[0]) if arguments else Path(__file__).resolve().parent.parent
    problems = Checker(root).check()
    for problem in problems:
        print(problem)
    if not problems:
        print("check-layering.py: no violation.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
