#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Fails on sources without their opening, on sources that grew too long, on comments behind a field,
on texts that the toolkit may take for markup, and on words that have no place in the project (tools/words.json).

usage: check-sources.py [--root FOLDER] [--words FILE] [--longest LINES]
"""

import argparse
import json
import os
import re

from fields import comments_behind
from markup import markup_problems
from sources import SOURCE_SUFFIXES, finish, project_files, read_text

SPDX = "SPDX-License-Identifier: Apache-2.0"
LONGEST = 400
SCRIPT_SUFFIXES = (".py", ".sh", ".cmake", "CMakeLists.txt")


def opening_problem(path, lines):
    """A source says its licence, then what it is for."""
    first = 1 if lines and lines[0].startswith("#!") else 0
    if len(lines) <= first or SPDX not in lines[first]:
        return f"{path}:{first + 1}: must begin with the line \"{SPDX}\""
    if not path.endswith(SOURCE_SUFFIXES):
        return None
    if len(lines) < 2 or not lines[1].startswith("// "):
        return f"{path}:2: say in one to four lines what this file is for"
    return None


def word_problems(path, lines, words):
    for number, line in enumerate(lines, start=1):
        for pattern, advice in words:
            match = pattern.search(line)
            if match:
                yield f"{path}:{number}: \"{match.group(0).strip()}\": {advice}"


def check_file(path, text, words, longest):
    lines = text.splitlines()
    if path.endswith(SOURCE_SUFFIXES + SCRIPT_SUFFIXES) or text.startswith("#!"):
        problem = opening_problem(path, lines)
        if problem:
            yield problem
    if path.endswith(SOURCE_SUFFIXES) and len(lines) > longest:
        yield f"{path}:{longest + 1}: {len(lines)} lines; split it by concern (at most {longest})"
    if path.endswith(SOURCE_SUFFIXES):
        for number in comments_behind(text):
            yield f"{path}:{number}: what is to be known of a field stands above it, not behind"
        for number, problem in markup_problems(path, text):
            yield f"{path}:{number}: {problem}"
    yield from word_problems(path, lines, words)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", default=os.path.dirname(here))
    parser.add_argument("--words", default=os.path.join(here, "words.json"))
    parser.add_argument("--longest", type=int, default=LONGEST)
    arguments = parser.parse_args()
    with open(arguments.words, encoding="utf-8") as file:
        rules = json.load(file)
    words = [(re.compile(pattern), advice) for pattern, advice in rules["patterns"].items()]
    violations, checked = [], 0
    for path in project_files(arguments.root):
        text = None if path in rules["skip"] else read_text(arguments.root, path)
        if text is None:
            continue
        checked += 1
        violations += check_file(path, text, words, arguments.longest)
    finish("sources", violations, checked)


if __name__ == "__main__":
    main()
