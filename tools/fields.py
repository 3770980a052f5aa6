# SPDX-License-Identifier: Apache-2.0
"""Finds comments that stand behind a member: what is to be known of a field stands above it."""

import re

RECORD = re.compile(r"\b(class|struct|union|enum)\b[^;()=]*$")
# Texts and characters may hold braces and slashes; a raw text may even hold lines.
RAW_TEXT = re.compile(r'R"(\w*)\(.*?\)\1"', re.DOTALL)
TEXT = re.compile(r'"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])\'(?:\\.|[^\'\\\n])+\'')
BLOCK_COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
MEMBER = re.compile(r"[^\s/}].*[;,]\s*//")
FOR_TOOLS = re.compile(r"//\s*(NOLINT|clang-format)")


def blanked(match):
    """Nothing that a reader of braces could take for one, on as many lines."""
    return '""' + "\n" * match.group(0).count("\n")


def head_after(line, head, inside):
    """Follows a line's braces. `head` is what stands before the next one, `inside` whether each open
    one is a record's; gives the next head."""
    for character in line.split("//")[0] + "\n":
        if character == "{":
            inside.append(bool(RECORD.search(head)))
        elif character == "}" and inside:
            inside.pop()
        head = "" if character in "{};" else head + character
    return head


def comments_behind(text):
    """The numbers of the lines where a comment stands behind a member or an enumerator."""
    for pattern in (RAW_TEXT, TEXT, BLOCK_COMMENT):
        text = pattern.sub(blanked, text)
    inside, head = [], ""
    for number, line in enumerate(text.splitlines(), start=1):
        if line.lstrip().startswith("#"):
            continue
        was_member = bool(inside) and inside[-1]
        head = head_after(line, head, inside)
        is_trailing = was_member and MEMBER.match(line.strip()) and not FOR_TOOLS.search(line)
        if is_trailing or "///<" in line:
            yield number
