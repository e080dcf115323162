#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Checks that the standard icons keep to their visual language (resources/icons/README.md).

check-icons.py [DIRECTORY]   default: resources/icons of this tree; prints every violation and fails on any
"""
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PALETTE = {
    "Slate": "#6e7f90",
    "Blue": "#2f83d6",
    "Cyan": "#0f9296",
    "Green": "#2f9648",
    "Amber": "#b8730f",
    "Red": "#df4f49",
    "Violet": "#9b6ad6",
}
PAPER = "#ffffff"  # only with a solid colour, so it need not stand out from any ground
USES_PAPER = re.compile(r"Overlays/|round_led_")
IS_LAMP = re.compile(r"round_led_")
GROUNDS = ("#ffffff", "#f0f0f0", "#202124", "#2b2b2b")
SMALLEST_CONTRAST = 3

ROOT = {"width": "24", "height": "24", "viewBox": "0 0 24 24"}
GROUP = {"fill": "none", "stroke-width": "2", "stroke-linecap": "round", "stroke-linejoin": "round"}
# What all renderers of SVG Tiny draw alike; values where only some of them are wanted.
ATTRIBUTES = {
    "d": None, "cx": None, "cy": None, "r": None, "x": None, "y": None, "width": None, "height": None, "rx": None,
    "fill": None, "stroke": None, "transform": None, "stroke-dasharray": None,
    "fill-rule": ("evenodd",), "fill-opacity": ("0.2",), "stroke-width": ("1.5",),
}
SHAPES = ("path", "circle", "rect")
FILE_NAME = re.compile(r"\w+_normal_(on|off)\.svg")
# What the icon loader takes out of a file name.
STRUCK = re.compile(r"[_.\-](\d+[xX]\d+|normal|disabled|active|selected|on|off)", re.IGNORECASE)


def luminance(colour):
    def linear(value):
        return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
    red, green, blue = (linear(int(colour[i:i + 2], 16) / 255) for i in (1, 3, 5))
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def check_colours(name, element):
    allowed = set(PALETTE.values())
    if USES_PAPER.search(name):
        allowed.add(PAPER)
    if IS_LAMP.search(name):
        allowed.add("url(#lamp)")
    for attribute in ("fill", "stroke"):
        colour = element.get(attribute)
        if colour is not None and colour not in allowed:
            yield f'{attribute} "{colour}" is not in the palette'
    if element.get("fill") is None and element.get("stroke") is None:
        yield f"a {element.tag} is not painted"


def check_shape(name, element):
    tag = element.tag
    if tag not in SHAPES:
        yield f"element <{tag}> is not used here"
        return
    for attribute, value in element.attrib.items():
        if attribute not in ATTRIBUTES:
            yield f'attribute "{attribute}" is not used here'
        elif ATTRIBUTES[attribute] is not None and value not in ATTRIBUTES[attribute]:
            yield f'{attribute} "{value}" is not among {ATTRIBUTES[attribute]}'
    yield from check_colours(name, element)


def check_image(name, root):
    if root.attrib != ROOT:
        yield f"the root has not exactly the attributes {ROOT}"
    children = list(root)
    if IS_LAMP.search(name) and children and children[0].tag == "defs":
        children = children[1:]
    if len(children) != 1 or children[0].tag != "g" or children[0].attrib != GROUP:
        yield f"the root has not exactly one group with the attributes {GROUP}"
        return
    for element in children[0]:
        yield from check_shape(name, element)


def check_name(path):
    if not FILE_NAME.fullmatch(path.name):
        yield 'the file is not named "<base>_normal_off.svg" or "<base>_normal_on.svg"'
    elif STRUCK.search(re.sub(r"_normal_(on|off)\.svg$", "", path.name)):
        yield "the icon loader would take a part of this name for a tag"
    elif path.name.endswith("_on.svg") and not path.with_name(path.name[:-6] + "off.svg").exists():
        yield "there is no image for the state off"


def problems(directory):
    for name, colour in PALETTE.items():
        for ground in GROUNDS:
            if contrast(colour, ground) < SMALLEST_CONTRAST:
                yield f"{name} {colour}: contrast {contrast(colour, ground):.2f} on {ground}"
    special = sorted(directory.glob("special/*.svg"))
    catalogue = sorted(directory.glob("StandardIcons/**/*.svg"))
    if not catalogue:
        yield f"{directory}: no images"
    seen = {}
    for path in special + catalogue:
        name = path.relative_to(directory).as_posix()
        text = path.read_text(encoding="utf-8")
        try:
            root = ElementTree.fromstring(text.replace(' xmlns="http://www.w3.org/2000/svg"', "", 1))
        except ElementTree.ParseError as error:
            yield f"{name}: {error}"
            continue
        found = list(check_image(name, root)) + (list(check_name(path)) if path in catalogue else [])
        if text in seen:
            found.append(f"the same drawing as {seen[text]}")
        seen.setdefault(text, name)
        for problem in found:
            yield f"{name}: {problem}"


def main(arguments):
    directory = Path(arguments[0]) if arguments else Path(__file__).resolve().parent.parent / "resources" / "icons"
    found = list(problems(directory))
    for problem in found:
        print(problem)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
