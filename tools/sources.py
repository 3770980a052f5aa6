# SPDX-License-Identifier: Apache-2.0
"""What the checkers share: which files the project has, and how a violation is reported."""

import os
import sys

SOURCE_SUFFIXES = (".h", ".cpp")
SKIPPED_FOLDERS = {".git", ".cache", "out", "node_modules", "__pycache__"}


def project_files(root, suffixes=None):
    """Paths below root, relative and sorted, without build folders and what tools leave behind."""
    found = []
    for folder, children, names in os.walk(root):
        children[:] = sorted(
            c for c in children if c not in SKIPPED_FOLDERS and not c.startswith("build")
        )
        for name in names:
            if name == ".git":  # a linked work tree has a file of this name
                continue
            if suffixes is None or name.endswith(suffixes):
                found.append(os.path.relpath(os.path.join(folder, name), root))
    return sorted(found)


def read_text(root, path):
    """A file's text, or None where it is no text (a picture, a PDF document)."""
    with open(os.path.join(root, path), "rb") as file:
        content = file.read()
    if b"\0" in content or content.startswith(b"%PDF"):
        return None
    return content.decode("utf-8", errors="replace")


def finish(name, violations, checked):
    """Prints the violations, one a line, and ends the program: 1 with violations, else 0."""
    for violation in violations:
        print(violation)
    if violations:
        print(f"{name}: {len(violations)} violation(s) in {checked} files", file=sys.stderr)
        sys.exit(1)
    print(f"{name}: {checked} files, no violation")
    sys.exit(0)
