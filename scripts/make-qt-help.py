#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Makes a compressed Qt help file of what Doxygen has written, and looks whether it is whole.

make-qt-help.py QHELPGENERATOR HELP.qhp HELP.qch      run in the root of the sources
"""
import re
import sqlite3
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ANCHOR = re.compile(r"_(?:[a-g]?[0-9a-f]{32,})?$")
EXPORTED = re.compile(r"^class PYXRUNTIME_EXPORT (\w+)", re.MULTILINE)


def name_keywords(project):
    """Qt Creator asks for "PYXRuntime::PYXBroker"; Doxygen adds the anchor, or for a class "_"."""
    tree = ElementTree.parse(project)
    for keyword in tree.iter("keyword"):
        keyword.set("id", ANCHOR.sub("", keyword.get("id")))
    tree.write(project, encoding="UTF-8", xml_declaration=True)


def faults(help_file):
    with sqlite3.connect(help_file) as database:
        keywords = {name for (name,) in database.execute("SELECT Identifier FROM IndexTable")}
        titles = {title.partition(": ")[2] for (title,) in database.execute("SELECT Title FROM FileNameTable")}
        contents = [data or b"" for (data,) in database.execute("SELECT Data FROM ContentsTable")]
        empty = database.execute(
            "SELECT Name FROM FileNameTable JOIN FileDataTable ON FileId = Id WHERE Name <> '' AND Data IS NULL")
        yield from (f"the file {name} is empty" for (name,) in empty)
    headers = [header.read_text("utf-8") for header in Path("include").rglob("*.h")]
    classes = {name for header in headers for name in EXPORTED.findall(header)}
    documented = {keyword.rpartition("::")[2] for keyword in keywords}
    yield from (f"there is no keyword of the class {name}" for name in sorted(classes - documented))
    pages = {page.read_text("utf-8").split("\n")[0].removeprefix("# ") for page in Path("docs").glob("*.md")}
    yield from (f"there is no page \"{title}\"" for title in sorted(pages - titles))
    if "PYXRuntime::PYXBroker::topObject" not in keywords:
        yield "there are no keywords of operations"
    if not any("Broker".encode("utf-16-be") in data for data in contents):
        yield "there is no table of contents"


def main():
    generator, project, help_file = sys.argv[1:]
    name_keywords(project)
    subprocess.run([generator, project, "-o", help_file], check=True, stdout=subprocess.DEVNULL)
    found = list(faults(help_file))
    for fault in found:
        print(f"{help_file}: {fault}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
