#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""compare_with_pefile.py PROBE: checks that the probe and pefile find the same version resources in all PE files
of the packages wine64 and libwine. Exit status 77: pefile or the packages are not installed."""
import json
import subprocess
import sys
from pathlib import Path

try:
    import pefile
except ImportError:
    print("needs python3-pefile")
    sys.exit(77)

RT_VERSION, VS_VERSION_INFO, NEUTRAL, AMERICAN_ENGLISH = 16, 1, 0, 0x0409
FIXED_FIELDS = ("Signature StrucVersion FileVersionMS FileVersionLS ProductVersionMS ProductVersionLS FileFlagsMask"
                " FileFlags FileOS FileType FileSubtype FileDateMS FileDateLS").split()
NOTHING = {"loaded": False, "fixed": [], "locales": [], "strings": {}}


def portable_executables():
    listed = subprocess.run(["dpkg", "-L", "wine64", "libwine"], capture_output=True, text=True, check=False).stdout
    for path in map(Path, listed.splitlines()):
        if path.is_file() and path.stat().st_size > 64:
            with path.open("rb") as file:
                if file.read(2) == b"MZ":
                    yield path


def chosen_language(image):
    """The index among all version resources of the one that counts; None where there is none."""
    for kind in getattr(image, "DIRECTORY_ENTRY_RESOURCE", None).entries if hasattr(
            image, "DIRECTORY_ENTRY_RESOURCE") else []:
        if kind.id == RT_VERSION:
            assert [name.id for name in kind.directory.entries] == [VS_VERSION_INFO]
            languages = [entry.id for entry in kind.directory.entries[0].directory.entries]
            return next((languages.index(wanted) for wanted in (NEUTRAL, AMERICAN_ENGLISH) if wanted in languages), 0)
    return None


def expected(path):
    image = pefile.PE(str(path), fast_load=True)
    image.parse_data_directories(directories=[pefile.DIRECTORY_ENTRY["IMAGE_DIRECTORY_ENTRY_RESOURCE"]])
    chosen = chosen_language(image)
    if chosen is None:
        return NOTHING
    found = {"loaded": True, "locales": [], "strings": {}}
    found["fixed"] = [getattr(image.VS_FIXEDFILEINFO[chosen], field) for field in FIXED_FIELDS]
    for info in image.FileInfo[chosen]:
        for variable in getattr(info, "Var", []):
            pair = variable.entry[b"Translation"].split()
            found["locales"].append([int(number, 16) for number in pair])
        for table in getattr(info, "StringTable", []):
            found["strings"][table.LangID.decode()] = {
                name.decode(): text.decode() for name, text in table.entries.items()}
    image.close()
    return found


def main():
    paths = list(portable_executables())
    if not paths:
        print("needs the packages wine64 and libwine")
        return 77
    answers = subprocess.run([sys.argv[1]], input="\n".join(map(str, paths)) + "\n", capture_output=True, text=True,
                             check=True).stdout.splitlines()
    assert len(answers) == len(paths)
    different, with_version = 0, 0
    for path, answer in zip(paths, answers):
        ours, theirs = json.loads(answer), expected(path)
        with_version += theirs["loaded"]
        if ours != theirs:
            different += 1
            print(f"{path}:\n  ours   {ours}\n  pefile {theirs}")
    print(f"{len(paths)} files, {with_version} with a version resource, {different} differ")
    return 1 if different or not with_version else 0


if __name__ == "__main__":
    sys.exit(main())
