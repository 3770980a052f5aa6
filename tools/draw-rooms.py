#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the rooms of tools/layers.json, floor by floor, into ARCHITECTURE.md.

usage: draw-rooms.py [--check] [--rules FILE] [--page FILE]

Without --check the picture on the page is replaced; with it nothing is written, and a picture that
is not the rules' own fails.
"""

import argparse
import json
import os

from layers import edges_of
from sources import finish

BEGIN = "<!-- drawn by tools/draw-rooms.py -->\n"
END = "<!-- end of the drawing -->\n"


def floors(edges):
    """Rooms by floor, the highest first: a room stands one floor above the highest it leans on."""
    heights = {}

    def height(room):
        if room not in heights:
            heights[room] = 1 + max((height(below) for below in edges[room]), default=-1)
        return heights[room]

    top = max(map(height, edges))
    return [sorted(room for room in edges if heights[room] == level) for level in range(top, -1, -1)]


def words_for(room, edges):
    """What a room may include, by house: `host: jobs ppd   platform: system`."""
    houses = {}
    for target in sorted(edges[room]):
        house, _, name = target.partition("/")
        houses.setdefault(house, []).append(name)
    return "   ".join(f"{house}: {' '.join(names)}" if names != [""] else house
                      for house, names in sorted(houses.items()))


def drawing(rules):
    edges = edges_of(rules["rooms"])
    width = max(map(len, edges))
    lines = []
    for number, floor in enumerate(floors(edges)):
        if number:
            lines.append("    " + "─" * (width + 2) + "┼" + "─" * 60)
        lines += [f"    {room:<{width + 2}}│ {words_for(room, edges) or '-'}" for room in floor]
    return "\n".join(lines) + "\n"


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--rules", default=os.path.join(here, "layers.json"))
    parser.add_argument("--page", default=os.path.join(os.path.dirname(here), "ARCHITECTURE.md"))
    arguments = parser.parse_args()
    with open(arguments.rules, encoding="utf-8") as file:
        rules = json.load(file)
    with open(arguments.page, encoding="utf-8") as file:
        page = file.read()
    before, begin, rest = page.partition(BEGIN)
    _, end, after = rest.partition(END)
    if not begin or not end:
        finish("rooms", [f"{arguments.page}: lacks the marks between which the rooms are drawn"], 1)
    drawn = before + BEGIN + "\n" + drawing(rules) + "\n" + END + after
    if arguments.check:
        stale = f"{arguments.page}: the rooms are not drawn as the rules have them; run tools/draw-rooms.py"
        finish("rooms", [] if drawn == page else [stale], 1)
    with open(arguments.page, "w", encoding="utf-8") as file:
        file.write(drawn)


if __name__ == "__main__":
    main()
