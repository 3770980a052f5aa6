#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Changes the sources one small way at a time and asks whether a test notices.

usage: mutate.py [OPTION]... [FOLDER_OR_FILE]...        all folders of mutants.json without any

A change leaves a statement out, turns a condition or a truth value round, drops an operand of &&
or ||, or gives an empty result. All changes of a file are built at once, asleep; the environment
variable ORVEK_MUTANT wakes one, so that a change costs a run of the tests and no compilation.
Everything happens in a copy of the tree, built without optimisation; the tree itself is never
touched. Changes that do not compile don't count. Those that no test can notice stand in
mutants.json, each with its reason.

Prints one line for each change that survived, and a table. Exit status: 0, or 1 where fewer than
--least percent were caught, or 2 where the tests fail without any change.
"""

import argparse
import concurrent.futures
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import time

from mutants import find_mutants, instrument

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)
ENVIRONMENT = {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
# Where several changes share the line of an error, the first kind of these is to blame.
FRAGILE = ["empty result", "drop operand", "invert", "leave out"]
SHORTEST_LIMIT = 20  # seconds that a run of tests may take, however short it is without a change


def fail(message):
    print(f"mutate: {message}", file=sys.stderr)
    sys.exit(2)


def copy_file(path, tree, text=None):
    """Writes only what differs, so that a second pass builds little."""
    target = os.path.join(tree, path)
    os.makedirs(os.path.dirname(target), exist_ok=True)
    with open(os.path.join(ROOT, path), "rb") as file:
        content = file.read() if text is None else text.encode()
    if os.path.exists(target):
        with open(target, "rb") as file:
            if file.read() == content:
                return
    with open(target, "wb") as file:
        file.write(content)
    shutil.copymode(os.path.join(ROOT, path), target)


def project_paths():
    command = ["git", "-C", ROOT, "ls-files", "--cached", "--others", "--exclude-standard"]
    listed = subprocess.run(command, capture_output=True, text=True, check=True).stdout
    return [p for p in listed.splitlines() if os.path.isfile(os.path.join(ROOT, p))]


class Copy:
    """The copied tree with its build folder."""

    def __init__(self, work, jobs):
        self.tree = os.path.join(work, "tree")
        self.build = os.path.join(work, "build")
        self.jobs = jobs

    def write(self, sources, mutants):
        for path, source in sources.items():
            own = [m for m in mutants if m.path == path]
            copy_file(path, self.tree, instrument(source, own))

    def prepare(self, sources, mutants):
        for path in project_paths():
            if path not in sources:
                copy_file(path, self.tree)
        self.write(sources, mutants)
        if os.path.exists(os.path.join(self.build, "build.ninja")):
            return
        switch = os.path.join(self.tree, "tools", "mutation-switch.inc")
        subprocess.run(
            ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja"]
            + ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"]
            + [f"-DCMAKE_CXX_FLAGS=-include {switch} -fmax-errors=0"],
            check=True,
            stdout=subprocess.DEVNULL,
        )

    def compile(self, targets):
        """What the compiler said, or None where all went well."""
        command = ["ninja", "-C", self.build, "-k", "0", "-j", str(self.jobs)] + targets
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        return None if done.returncode == 0 else done.stdout + done.stderr

    def run(self, program, limit, **environment):
        """Whether the tests pass within the limit (seconds)."""
        process = subprocess.Popen(
            [os.path.join(self.build, "bin", program), "--gtest_fail_fast=1", "--gtest_brief=1"],
            env=dict(os.environ, **ENVIRONMENT, **environment),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            start_new_session=True,
        )
        try:
            return process.wait(limit) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def blamed(log, mutants, build_folder, tree):
    """The changes that the errors speak of: on each line the one of the most fragile kind."""
    found = []
    for path, line in set(re.findall(r"^(\S+?):(\d+):\d+: error", log, re.MULTILINE)):
        line, path = int(line), os.path.relpath(os.path.join(build_folder, path), tree)
        near = [m for m in mutants if m.path == path and m.line <= line <= m.last_line]
        if near:
            found.append(min(near, key=lambda m: (FRAGILE.index(m.kind), m.last_line - m.line)))
    return found


def build(copy, sources, mutants, targets):
    """Builds the changed copy; gives the changes that compile."""
    while True:
        copy.write(sources, mutants)
        log = copy.compile(targets)
        if log is None:
            return mutants
        dropped = blamed(log, mutants, copy.build, copy.tree)
        if not dropped:
            print(log[-4000:], file=sys.stderr)
            fail("the copy does not compile")
        numbers = {m.number for m in dropped}
        mutants = [m for m in mutants if m.number not in numbers]


class Pass:
    """One pass over some changes."""

    def __init__(self, copy, rules, work, resume):
        self.copy, self.rules = copy, rules
        self.known_file = os.path.join(work, "results.json")
        self.known = {}
        if resume and os.path.exists(self.known_file):
            with open(self.known_file, encoding="utf-8") as file:
                self.known = json.load(file)
        self.limits, self.reached = {}, {}

    def baseline(self, programs, work):
        for program in programs:
            trace = os.path.join(work, f"{program}.trace")
            if os.path.exists(trace):
                os.remove(trace)
            begin = time.monotonic()
            if not self.copy.run(program, 900, ORVEK_MUTANT_TRACE=trace):
                fail(f"{program} fails without any change")
            self.limits[program] = max(SHORTEST_LIMIT, 4 * (time.monotonic() - begin))
            self.reached[program] = set()
            if os.path.exists(trace):
                with open(trace, encoding="ascii") as file:
                    self.reached[program] = set(map(int, file))

    def programs_for(self, mutant):
        programs = self.rules["programs"][mutant.path.split("/")[0]]
        return [p for p in programs if mutant.number in self.reached[p]]

    def judge(self, mutant, key):
        if self.known.get(key) == "caught":
            return "caught"
        for program in self.programs_for(mutant):
            number = str(mutant.number)
            if not self.copy.run(program, self.limits[program], ORVEK_MUTANT=number):
                return "caught"
        if any(is_equivalent(rule, mutant) for rule in self.rules["equivalent"]):
            return "equivalent"
        return "survived"

    def judge_all(self, mutants, jobs):
        keys = keys_of(mutants)
        results = {}
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            waiting = {pool.submit(self.judge, m, keys[m.number]): m for m in mutants}
            for done in concurrent.futures.as_completed(waiting):
                mutant = waiting[done]
                results[mutant.number] = self.known[keys[mutant.number]] = done.result()
                if done.result() == "survived":
                    reached = "" if self.programs_for(mutant) else " (never run)"
                    place = f"{mutant.path}:{mutant.line}"
                    print(f"{place}: {mutant.kind}: {mutant.code}{reached}", flush=True)
                with open(self.known_file, "w", encoding="utf-8") as file:
                    json.dump(self.known, file, indent=1)
        return results


def is_equivalent(rule, mutant):
    return (rule["file"], rule["kind"], rule["code"]) == (mutant.path, mutant.kind, mutant.code)


def keys_of(mutants):
    """Names that survive changes elsewhere in the file: the code, and which of its like it is."""
    seen, keys = {}, {}
    for m in mutants:
        name = f"{m.path}: {m.kind}: {m.code}"
        seen[name] = seen.get(name, 0) + 1
        keys[m.number] = f"{name} #{seen[name]}"
    return keys


def print_table(mutants, results):
    print(f"\n{'file':32} {'changes':>8} {'caught':>7} {'equivalent':>11} {'survived':>9}")
    total = [0, 0, 0, 0]
    for path in sorted({m.path for m in mutants}):
        own = [results[m.number] for m in mutants if m.path == path]
        row = [len(own)] + [own.count(r) for r in ("caught", "equivalent", "survived")]
        total = [a + b for a, b in zip(total, row)]
        print(f"{path:32} {row[0]:8} {row[1]:7} {row[2]:11} {row[3]:9}")
    print(f"{'all':32} {total[0]:8} {total[1]:7} {total[2]:11} {total[3]:9}")
    counted = total[1] + total[3]
    share = 100 * total[1] / counted if counted else 100.0
    print(f"caught: {share:.1f} % of {counted} changes that can be noticed")
    return share


def warn_of_stale_reasons(rules, mutants, results):
    """A reason must speak of a change that is there, and that no test notices."""
    paths = {m.path for m in mutants}
    for rule in rules["equivalent"]:
        own = [results[m.number] for m in mutants if is_equivalent(rule, m)]
        if rule["file"] in paths and "equivalent" not in own:
            print(f"mutants.json: not needed: {rule['file']}: {rule['kind']}: {rule['code']}")


def arguments_of():
    parser = argparse.ArgumentParser(
        description=__doc__,
        formatter_class=argparse.RawDescriptionHelpFormatter,
        usage=argparse.SUPPRESS,
    )
    add = parser.add_argument
    add("paths", nargs="*", metavar="FOLDER_OR_FILE", help="what to change")
    work = os.path.join(ROOT, "build-mutants")
    add("--work", default=work, metavar="FOLDER", help="where the copy is kept (build-mutants)")
    add("--jobs", type=int, default=os.cpu_count(), metavar="N", help="runs at a time")
    add("--sample", type=int, metavar="N", help="try N changes, drawn at random")
    add("--seed", type=int, default=0, metavar="N", help="for --sample")
    add("--resume", action="store_true", help="don't try again what a pass before this one caught")
    add("--least", type=float, default=95, metavar="PERCENT", help="must be caught (95)")
    add("--list", action="store_true", help="only say which changes there are")
    return parser.parse_args()


def chosen_sources(paths, folders):
    paths = [os.path.normpath(p) for p in paths or folders]
    for path in paths:
        if path.split("/")[0] not in folders:
            fail(f"{path}: mutants.json names no test program for it")
    chosen = [
        p
        for p in project_paths()
        if p.endswith((".cpp", ".h")) and any(p == c or p.startswith(c + "/") for c in paths)
    ]
    if not chosen:
        fail(f"{' '.join(paths)}: no source")
    sources = {}
    for path in chosen:
        with open(os.path.join(ROOT, path), encoding="utf-8") as file:
            sources[path] = file.read()
    return sources


def main():
    options = arguments_of()
    with open(os.path.join(HERE, "mutants.json"), encoding="utf-8") as file:
        rules = json.load(file)
    sources = chosen_sources(options.paths, list(rules["programs"]))
    mutants = [m for path, source in sources.items() for m in find_mutants(path, source)]
    for number, mutant in enumerate(mutants, 1):
        mutant.number = number
    if options.list:
        for m in mutants:
            print(f"{m.path}:{m.line}: {m.kind}: {m.code}")
        return 0
    folders = {path.split("/")[0] for path in sources}
    targets = sorted({program for folder in folders for program in rules["programs"][folder]})
    os.makedirs(options.work, exist_ok=True)
    copy = Copy(options.work, options.jobs)
    copy.prepare(sources, mutants)
    found = len(mutants)
    mutants = build(copy, sources, mutants, targets)
    print(f"{found} changes, {found - len(mutants)} of them do not compile", flush=True)
    run = Pass(copy, rules, options.work, options.resume)
    run.baseline(targets, options.work)
    if options.sample and options.sample < len(mutants):
        mutants = random.Random(options.seed).sample(mutants, options.sample)
    results = run.judge_all(mutants, options.jobs)
    share = print_table(mutants, results)
    if not options.sample:
        warn_of_stale_reasons(rules, mutants, results)
    return 0 if share >= options.least else 1


if __name__ == "__main__":
    sys.exit(main())
