#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Checks that every text of the sources is translated; prints what is wrong and fails on anything.

check-translations.py LUPDATE TS... -- DIRECTORY...   the .ts files against the sources in the directories
check-translations.py --self-test                     whether every kind of fault is found
"""
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

# How many forms a countable text has, by language.
PLURAL_FORMS = {"en": 2, "de": 2, "fr": 2}
PLACEHOLDER = re.compile(r"%(?:L?\d{1,2}|n)")
TAG = re.compile(r"</?(?:a|b|big|br|code|div|em|h[1-6]|hr|i|img|li|ol|p|pre|small|span|strong|su[bp]|table|t[dhrt]|u|ul)\b")
MNEMONIC = re.compile(r"&(?=\w)(?!\w+;)")


def messages(path):
    """(context, source, comment) -> (element, whether it is countable)"""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            found[key] = (message, message.get("numerus") == "yes")
    return found


def language(path):
    return ElementTree.parse(path).getroot().get("language", "")


def sources(lupdate, directories, english):
    """The texts of the sources, and lupdate's complaints about classes that cannot translate."""
    with tempfile.TemporaryDirectory() as scratch:
        fresh = Path(scratch) / "fresh.ts"
        plurals = ["-pluralonly"] if english else []
        run = subprocess.run([lupdate, "-locations", "none", *plurals, *directories, "-ts", str(fresh)],
                             capture_output=True, text=True, check=True)
        complaints = [line for line in (run.stdout + run.stderr).splitlines() if "lacks Q_OBJECT" in line or "without context" in line]
        return messages(fresh), complaints


def form_faults(source, text, countable):
    if not text:
        return ["is not translated"]
    faults = []
    wanted, found = (sorted(set(PLACEHOLDER.findall(words))) for words in (source, text))
    # One form may say "a file" instead of "%n file".
    if [place for place in wanted if place != "%n"] != [place for place in found if place != "%n"] or \
            ("%n" in found) > ("%n" in wanted) or ("%n" in wanted and "%n" not in found and not countable):
        faults.append("has other placeholders")
    if sorted(TAG.findall(source)) != sorted(TAG.findall(text)):
        faults.append("has other tags")
    if len(MNEMONIC.findall(source)) != len(MNEMONIC.findall(text)):
        faults.append("has other mnemonics")
    return faults


def message_faults(message, countable, forms):
    translation = message.find("translation")
    if translation is None or translation.get("type") is not None:
        return ["is not translated" if translation is None else f"is {translation.get('type')}"]
    texts = [form.text for form in translation.iter("numerusform")] if countable else [translation.text]
    faults = [] if not countable or len(texts) == forms else [f"has {len(texts)} plural forms instead of {forms}"]
    for text in texts:
        faults += form_faults(message.findtext("source"), text, countable)
    return faults


def check(path, wanted):
    """What is wrong with a .ts file, one line each."""
    found = messages(path)
    forms = PLURAL_FORMS.get(language(path).split("_")[0], 0)
    faults = [(key, "is missing") for key in wanted.keys() - found.keys()]
    faults += [(key, "is in no source") for key in found.keys() - wanted.keys()]
    for key in wanted.keys() & found.keys():
        message, countable = found[key]
        faults += [(key, fault) for fault in message_faults(message, countable, forms)]
        if countable != wanted[key][1]:
            faults.append((key, "is countable in one of file and source"))
    return [f'{Path(path).name}: {context}: "{source}" {fault}' for (context, source, _), fault in sorted(faults)]


def message_xml(source, translation, attributes=""):
    return f"<message{attributes}><source>{source}</source>{translation}</message>"


def ts_xml(*inner):
    return f'<TS language="de"><context><name>C</name>{"".join(inner)}</context></TS>'


def self_test():
    def done(text):
        return f"<translation>{text}</translation>"

    countable = ' numerus="yes"'
    forms = "<numerusform>ein Byte</numerusform><numerusform>%n Bytes</numerusform>"
    cases = [
        ("%1 &amp;of %n", done("%n &amp;von %1"), "", None),
        ("%n byte(s)", done(forms), countable, None),
        ("a", '<translation type="unfinished">b</translation>', "", "is unfinished"),
        ("a", '<translation type="vanished">b</translation>', "", "is vanished"),
        ("a", done(""), "", "is not translated"),
        ("%1 %2", done("%1 %3"), "", "has other placeholders"),
        ("&amp;File", done("Datei"), "", "has other mnemonics"),
        ("&lt;b&gt;x&lt;/b&gt;", done("&lt;b&gt;x"), "", "has other tags"),
        ("%n byte(s)", done("<numerusform>%n</numerusform>"), countable, "has 1 plural forms instead of 2"),
    ]
    failures = []
    with tempfile.TemporaryDirectory() as scratch:
        wanted, path = Path(scratch) / "wanted.ts", Path(scratch) / "found.ts"
        for source, translation, attributes, expected in cases:
            wanted.write_text(ts_xml(message_xml(source, "", attributes)), encoding="utf-8")
            path.write_text(ts_xml(message_xml(source, translation, attributes)), encoding="utf-8")
            faults = check(path, messages(wanted))
            if (faults == []) != (expected is None) or (expected and not faults[0].endswith(expected)):
                failures.append(f"{source}: expected {expected}, got {faults}")
        wanted.write_text(ts_xml(message_xml("new", "")), encoding="utf-8")
        faults = [line.rsplit('" ', 1)[1] for line in check(path, messages(wanted))]
        if faults != ["is in no source", "is missing"]:
            failures.append(f"missing and obsolete: got {faults}")
    return failures


def main():
    if sys.argv[1:] == ["--self-test"]:
        faults = self_test()
    else:
        divider = sys.argv.index("--")
        files, directories = sys.argv[2:divider], sys.argv[divider + 1:]
        faults = []
        for path in files:
            wanted, complaints = sources(sys.argv[1], directories, language(path).startswith("en"))
            faults += complaints + check(path, wanted)
    for line in dict.fromkeys(faults):
        print(line)
    print(f"check-translations.py: {len(faults)} faults" if faults else "check-translations.py: all is translated.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
