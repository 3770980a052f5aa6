#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Fails on every #include edge that tools/layers.json does not allow, and on names used outside their room.

usage: check-layers.py [--root FOLDER] [--rules FILE] [--unused]
"""

import argparse
import json
import os
import re

from layers import circle, covers, edges_of, room_of
from sources import SOURCE_SUFFIXES, finish, project_files, read_text

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
MOC_OUTPUT = re.compile(r"^(moc_\w+\.cpp|\w+\.moc)$")


def includes(text):
    """(line number, whether in quotes, path) of every include."""
    for number, line in enumerate(text.splitlines(), start=1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1) == '"', match.group(2)


def edge_problem(room, quoted, target, rules):
    """Why a file of the room must not include the target; None where it may."""
    rooms = rules["rooms"]
    houses = {name.split("/")[0] for name in rooms}
    first = target.split("/")[0]
    if not quoted:
        if first in houses and "/" in target:
            return f"<{target}>: the project's own headers are included in quotes"
        if target.startswith(rules["installedPrefix"]) and "*" not in rooms[room]:
            return f"<{target}>: that is the installed copy, for programs outside the project"
        return None
    if MOC_OUTPUT.match(target):
        return None
    if "/" not in target or first not in houses:
        return f'"{target}": write the path from the project\'s root'
    entered = room_of(os.path.dirname(target), rooms)
    if entered is None:
        return f'"{target}": lies in no room that tools/layers.json names'
    if entered == room or any(covers(pattern, entered) for pattern in rooms[room]):
        return None
    may = ", ".join(rooms[room]) or "nothing of ours"
    return f'"{target}": {room}/ may include {may}, not {entered}/'


def is_kept_out(path, rule):
    """Whether a rule that lets few files in keeps this one out. A rule may hold within one folder only."""
    if not path.startswith(rule.get("within", "")):
        return False
    return not any(path.startswith(file) if file.endswith("/") else path == file for file in rule["files"])


def door_problem(path, quoted, target, rules):
    """Why this file must not include a header that has one door only."""
    rule = rules["onlyIn"].get(target)
    if rule is None or not is_kept_out(path, rule):
        return None
    written = f'"{target}"' if quoted else f"<{target}>"
    return f'{written}: include "{rule["instead"]}" instead'


def used_names(path, text, rules):
    """(line number, why) of names that came in with another header and are not for this file."""
    for rule in rules.get("usedOnlyIn", []):
        if not is_kept_out(path, rule):
            continue
        for number, line in enumerate(text.splitlines(), start=1):
            match = re.search(rule["names"], line.split("//")[0])
            if match:
                yield number, f'{match.group(0)}: {rule["instead"]}'


def check_file(path, room, text, rules):
    for number, quoted, target in includes(text):
        problem = edge_problem(room, quoted, target, rules) or door_problem(path, quoted, target, rules)
        if problem:
            yield f"{path}:{number}: {problem}"
    for number, problem in used_names(path, text, rules):
        yield f"{path}:{number}: {problem}"


def unused_edges(used, rooms):
    """Edges that the rules allow and no include needs."""
    for room, targets in edges_of(rooms).items():
        for target in targets:
            if (room, target) not in used:
                yield f"{room}/ may include {target}/, and nothing in it does: take the edge out"


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", default=os.path.dirname(here))
    parser.add_argument("--rules", default=os.path.join(here, "layers.json"))
    parser.add_argument("--unused", action="store_true", help="fail on edges that no include needs, too")
    arguments = parser.parse_args()
    with open(arguments.rules, encoding="utf-8") as file:
        rules = json.load(file)
    violations, checked, used = [], 0, set()
    around = circle(rules["rooms"])
    if around:
        violations.append(f"{arguments.rules}: rooms in a circle: {' -> '.join(around)}")
    for path in project_files(arguments.root, SOURCE_SUFFIXES):
        room = room_of(os.path.dirname(path), rules["rooms"])
        if room is None:
            violations.append(f"{path}: lies in no room that tools/layers.json names")
            continue
        checked += 1
        text = read_text(arguments.root, path) or ""
        violations += check_file(path, room, text, rules)
        used |= {(room, room_of(os.path.dirname(target), rules["rooms"])) for _, _, target in includes(text)}
    if arguments.unused:
        violations += unused_edges(used, rules["rooms"])
    finish("layers", violations, checked)


if __name__ == "__main__":
    main()
