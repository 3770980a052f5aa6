#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Fails where two types have the same qualified name: linked into one program, one would silently stand for the other.

usage: check-types.py [--root FOLDER]
"""

import argparse
import os
import re

from sources import SOURCE_SUFFIXES, finish, project_files, read_text

# Each is replaced by blanks of the same lines, so that braces inside them do not count.
NOISE = re.compile(
    r"//[^\n]*|/\*.*?\*/|R\"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)\"|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])*'"
    r"|^[ \t]*#(?:\\\n|[^\n])*",
    re.DOTALL | re.MULTILINE,
)
NAMESPACE = re.compile(r"\bnamespace\b\s*(?P<name>[\w:]*)\s*$")
TYPE = re.compile(
    r"\b(?:class|struct|union|enum(?:\s+(?:class|struct))?)\s+(?:\[\[[^\]]*\]\]\s*)?(?:[A-Z][A-Z_]+\s+)?"
    r"(?P<name>[A-Za-z_]\w*)(?:\s+final)?\s*(?::[^:;{}()][^;{}]*)?$"
)


def without_noise(text):
    return NOISE.sub(lambda match: "\n" * match.group(0).count("\n"), text)


def types_in(text):
    """(qualified name, line) of every type that is defined where other files could define it too."""
    scopes, begin, line = [], 0, 1
    text = without_noise(text)
    for position, letter in enumerate(text):
        if letter == "\n":
            line += 1
        elif letter in ";}":
            begin = position + 1
            if letter == "}" and scopes:
                scopes.pop()
        elif letter == "{":
            scope = scope_opened(text[begin:position])
            if scope and scope[0] == "type" and all(kind != "other" for kind, _ in scopes):
                yield "::".join(name for _, name in scopes + [scope]), line
            scopes.append(scope or ("other", ""))
            begin = position + 1


def scope_opened(head):
    """What an opening brace begins: a namespace, a type, or None for all else (functions, unnamed namespaces)."""
    namespace = NAMESPACE.search(head)
    if namespace:
        return ("namespace", namespace.group("name")) if namespace.group("name") else None
    named = TYPE.search(re.sub(r"^\s*template\s*<[^{;]*?>\s*(?=class|struct)", "", head).strip())
    return ("type", named.group("name")) if named else None


# Each folder of tests, benchmarks and fuzzers makes programs of its own.
def program_of(path):
    first = path.split(os.sep)[0]
    return os.path.dirname(path) if first in ("tests", "bench", "fuzz") else "product"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", default=os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    arguments = parser.parse_args()
    first_places, violations = {}, []
    paths = project_files(arguments.root, SOURCE_SUFFIXES)
    for path in sorted(paths, key=lambda path: (program_of(path) != "product", path)):
        for name, line in types_in(read_text(arguments.root, path) or ""):
            here = f"{path}:{line}"
            for program in {program_of(path), "product"}:
                other = first_places.get((program, name))
                if other:
                    violations.append(f"{here}: {name} is defined in {other} too; rename one of them")
                    break
            first_places.setdefault((program_of(path), name), here)
    finish("types", violations, len(paths))


if __name__ == "__main__":
    main()
