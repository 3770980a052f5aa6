#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Fails where a binary lacks what makes a fault in it hard to exploit. Reads it with readelf.

usage: check-hardening.py BINARY...
"""

import re
import subprocess
import sys

from sources import finish

# With _FORTIFY_SOURCE the C library's headers turn each of these into one that looks at its format. Calls
# that copy are no sign: the compiler leaves those plain of which it knows that they fit.
FORTIFIED = {"dprintf", "fprintf", "printf", "syslog", "vfprintf", "vprintf", "vsyslog"}
# What the compiler's and the C library's own start-up files bring.
START_UP = {"_init", "_fini", "_start"}
LANDING = b"\xf3\x0f\x1e\xfa"  # endbr64
SYMBOL = re.compile(
    r"^\s*\d+:\s+([0-9a-f]+)\s+\S+\s+(\w+)\s+(\w+)\s+\w+\s+(\w+)\s+([^\s@]+)", re.MULTILINE
)
SEGMENT = re.compile(r"^\s*(\w+)\s+0x([0-9a-f]+)\s+0x([0-9a-f]+)\s+\S+\s+0x([0-9a-f]+)\s+\S+\s+(.{3})", re.M)


def unlanded(path, segments, symbols):
    """The functions that others may call and that don't begin where a branch may land."""
    with open(path, "rb") as file:
        content = file.read()
    loads = [(int(o, 16), int(v, 16), int(s, 16)) for kind, o, v, s, _ in segments if kind == "LOAD"]
    missing = set()
    for value, kind, binding, section, name in symbols:
        address = int(value, 16)
        if kind != "FUNC" or binding != "GLOBAL" or section == "UND" or name in START_UP:
            continue
        for offset, begin, size in loads:
            if begin <= address < begin + size:
                place = offset + address - begin
                if content[place : place + 4] != LANDING:
                    missing.add(name)
    return sorted(missing)


def faults(path):
    """What the binary lacks, one phrase each."""
    run = subprocess.run(
        ["readelf", "-W", "-h", "-l", "-d", "-s", path], capture_output=True, text=True, check=False
    )
    if run.returncode != 0 or "ELF Header" not in run.stdout:
        return ["is no ELF file that readelf understands"]
    text = run.stdout
    segments, symbols = SEGMENT.findall(text), SYMBOL.findall(text)
    flags = {kind: flag for kind, _, _, _, flag in segments}
    needed = {name for _, _, _, section, name in symbols if section == "UND"}
    found = []
    if not re.search(r"Type:\s+DYN", text):
        found.append("is not position-independent")
    if "GNU_RELRO" not in flags:
        found.append("has no read-only relocations")
    if "BIND_NOW" not in text and not re.search(r"Flags:.*\bNOW\b", text):
        found.append("binds its symbols late")
    if "E" in flags.get("GNU_STACK", "E"):
        found.append("has an executable stack")
    if "(TEXTREL)" in text:
        found.append("has relocations in its code")
    if "__stack_chk_fail" not in needed:
        found.append("has no guarded stacks")
    if needed & FORTIFIED:
        found.append("calls " + ", ".join(sorted(needed & FORTIFIED)) + " unchecked")
    if "X86-64" in text:
        missing = unlanded(path, segments, symbols)
        if missing:
            found.append(f"has {len(missing)} functions where no branch may land ({missing[0]} ...)")
    return found


def main():
    if len(sys.argv) < 2:
        sys.exit("usage: check-hardening.py BINARY...")
    violations = [f"{path}: {fault}" for path in sys.argv[1:] for fault in faults(path)]
    return finish("hardening", violations, len(sys.argv) - 1)


if __name__ == "__main__":
    sys.exit(main())
