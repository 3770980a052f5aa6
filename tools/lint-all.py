#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Lints many sources in a fraction of the time that one by one takes.

Most of clang-tidy's time goes to headers, the same for each source. So sources with equal flags are put
behind one another into one text and linted as one. That is a sieve: where it finds something, the
sources concerned are linted alone, and only what is found there counts.

usage: lint-all.py [--jobs N] [--verbose] DATABASE_FOLDER
"""

import argparse
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

# Of more, a finding has many of them linted again.
TOGETHER = 12
# Beyond this many names of one meaning too many, sources don't belong together.
ROUNDS = 12
CLASH = re.compile(r":(\d+):\d+: error: (?:redefinition of|reference to) '(?:[\w:]*::)?(\w+)")
ERROR = re.compile(r":(\d+):\d+: (?:fatal )?error: ")
FINDING = re.compile(r"^(\S+?):(\d+):\d+: (?:error|warning): ", re.MULTILINE)


class Joined:
    """Sources behind one another, and which line is whose."""

    def __init__(self, sources):
        self.sources = sources
        self.texts = [open(source, encoding="utf-8").read() + "\n" for source in sources]

    def text(self):
        return "".join(self.texts)

    def owner(self, line):
        """The number of the source that a line of the text is from."""
        for number, text in enumerate(self.texts):
            line -= text.count("\n")
            if line <= 0:
                return number
        return len(self.texts) - 1

    def includer(self, header):
        """The first source that includes the header by its name; the first of all where none does."""
        includes = (source for source, text in zip(self.sources, self.texts) if f'/{header}"' in text)
        return next(includes, self.sources[0])

    def rename(self, number, name):
        """Gives one source's `name` another, as if it had stood in a file of its own."""
        self.texts[number] = re.sub(rf"\b{name}\b", f"{name}{number}", self.texts[number])

    def drop(self, number):
        del self.sources[number], self.texts[number]


def flags_of(entry):
    """What the source is compiled with, without its own name and its output's."""
    words = shlex.split(entry["command"])
    start = next(i for i, word in enumerate(words) if word.startswith("-"))
    kept = []
    for word, before in zip(words[start:], words[start - 1 :]):
        if before not in ("-o", "-c") and word not in ("-o", "-c"):
            kept.append(word)
    return (entry["directory"], *kept)


def batches(database, sources):
    """Lists of (flags, sources), none longer than TOGETHER."""
    groups = {}
    for source in sources:
        # Sources of one folder say alike things, and include alike headers.
        key = (flags_of(database[source]), os.path.dirname(source))
        groups.setdefault(key, []).append(source)
    for (flags, _), members in groups.items():
        for begin in range(0, len(members), TOGETHER):
            yield flags, members[begin : begin + TOGETHER]


def syntax_errors(flags, path):
    command = ["clang++", *flags[1:], "-w", "-ferror-limit=0", "-fsyntax-only", path]
    done = subprocess.run(command, cwd=flags[0], capture_output=True, text=True, check=False)
    return [line for line in done.stderr.splitlines() if line.startswith(path) and ERROR.search(line)]


def settle(joined, flags, path):
    """Renames what clashes, and drops sources that won't stand beside the others; those dropped."""
    dropped = []
    for _ in range(ROUNDS):
        with open(path, "w", encoding="utf-8") as file:
            file.write(joined.text())
        errors = syntax_errors(flags, path)
        if not errors:
            return dropped
        clashes = {(joined.owner(int(c[1])), c[2]) for c in map(CLASH.search, errors) if c}
        if clashes:
            for number, name in clashes:
                joined.rename(number, name)
            continue
        number = max(joined.owner(int(ERROR.search(error)[1])) for error in errors)
        dropped.append(joined.sources[number])
        joined.drop(number)
    dropped += joined.sources
    joined.sources.clear()
    return dropped


def rules_for(source, path):
    """Writes the rules that hold in the source's folder to `path`."""
    with open(path, "w", encoding="utf-8") as file:
        subprocess.run(["clang-tidy", "--dump-config", source, "--"], stdout=file, check=True)


def suspects(joined, flags, path):
    """The sources that lint finds something in; all of them, where it is not plain whose it is."""
    rules = path + ".rules"
    rules_for(joined.sources[0], rules)
    command = ["clang-tidy", f"--config-file={rules}", "--quiet", path, "--", *flags[1:]]
    done = subprocess.run(command, cwd=flags[0], capture_output=True, text=True, check=False)
    found = FINDING.findall(done.stdout)
    if done.returncode == 0 and not found:
        return []
    if not found:
        return list(joined.sources)
    concerned = set()
    for file, line in found:
        if file == path:
            concerned.add(joined.sources[joined.owner(int(line))])
        else:
            concerned.add(joined.includer(os.path.basename(file)))
    return sorted(concerned)


def sieve(batch):
    """The batch's sources that have to be linted alone."""
    flags, sources = batch
    if len(sources) == 1:
        return sources
    joined = Joined(list(sources))
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "joined.cpp")
        folders = {os.path.dirname(source) for source in sources}
        flags = (*flags, *(f"-I{folder}" for folder in sorted(folders)))
        alone = settle(joined, flags, path)
        if len(joined.sources) > 1:
            return alone + suspects(joined, flags, path)
        return alone + joined.sources


def lint_alone(source, folder):
    """What lint says of one source; null: nothing."""
    command = ["clang-tidy", "-p", folder, "--quiet", source]
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.stdout + f"lint fails: {source}\n" if done.returncode else None


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--verbose", action="store_true")
    parser.add_argument("folder")
    options = parser.parse_args()
    with open(os.path.join(options.folder, "compile_commands.json"), encoding="utf-8") as file:
        database = {entry["file"]: entry for entry in json.load(file)}
    build = os.path.abspath(os.path.join(options.folder, "..")) + os.sep
    sources = sorted(source for source in database if not source.startswith(build))
    failed = False
    with ThreadPoolExecutor(options.jobs) as pool:
        work = sorted(batches(database, sources), key=lambda one: -len(one[1]))
        alone = [source for found in pool.map(sieve, work) for source in found]
        print(f"{len(sources)} sources, {len(alone)} of them linted alone", flush=True)
        if options.verbose:
            print("\n".join(alone), flush=True)
        for said in pool.map(lambda source: lint_alone(source, options.folder), alone):
            if said:
                failed = True
                print(said, flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
