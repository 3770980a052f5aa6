#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Finds code that stands twice: runs of equal tokens, white space and comments aside.

usage: check-duplicates.py [--root FOLDER] [--tokens N] [FOLDER_OF_SOURCES]...
"""

import argparse
import os
import re

from sources import SOURCE_SUFFIXES, finish, project_files, read_text

TOKENS = 100
TOKEN = re.compile(
    r"//[^\n]*|/\*.*?\*/"  # comments, dropped below
    r"|^[ \t]*#[ \t]*include[^\n]*"  # equal includes are no copied code
    r'|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\''
    r"|\w+|[^\w\s]",
    re.DOTALL | re.MULTILINE,
)


def tokens_of(text):
    """(token, line) pairs without comments and includes."""
    found, line, position = [], 1, 0
    for match in TOKEN.finditer(text):
        line += text.count("\n", position, match.start())
        position = match.start()
        token = match.group(0)
        if not token.startswith(("//", "/*")) and not token.lstrip().startswith("#"):
            found.append((token, line))
    return found


def run_length(one, i, other, j):
    """How many tokens are equal from one[i] and other[j] on; a run never laps over itself."""
    length = 0
    most = min(len(one) - i, len(other) - j)
    if one is other:
        most = min(most, j - i)
    while length < most and one[i + length][0] == other[j + length][0]:
        length += 1
    return length


def duplicates(files, least):
    """(path, line, other path, other line, tokens), each run once. `files`: path to tokens."""
    seen = {}
    for path, tokens in files.items():
        i = 0
        while i + least <= len(tokens):
            window = tuple(token for token, _ in tokens[i : i + least])
            first_path, first = seen.setdefault(window, (path, i))
            length = run_length(files[first_path], first, tokens, i)
            if (first_path, first) == (path, i) or length < least:
                i += 1
                continue
            yield path, tokens[i][1], first_path, files[first_path][first][1], length
            i += length


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", default=os.path.dirname(here))
    parser.add_argument("--tokens", type=int, default=TOKENS, help=f"shortest run ({TOKENS})")
    parser.add_argument("folders", nargs="*", help="look in these folders only")
    arguments = parser.parse_args()
    files = {}
    for path in project_files(arguments.root, SOURCE_SUFFIXES):
        if not arguments.folders or path.split(os.sep)[0] in arguments.folders:
            files[path] = tokens_of(read_text(arguments.root, path) or "")
    violations = [
        f"{path}:{line}: {length} tokens as in {other}:{other_line}"
        for path, line, other, other_line, length in duplicates(files, arguments.tokens)
    ]
    finish("duplicates", violations, len(files))


if __name__ == "__main__":
    main()
