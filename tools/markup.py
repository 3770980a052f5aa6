# SPDX-License-Identifier: Apache-2.0
"""Finds where the toolkit would take a text from outside for markup, which can have files read."""

import re

ROOMS = ("host/", "panel/", "platform/", "plugin/")
HOME = ("platform/ui/PlainText.h", "platform/ui/PlainText.cpp")
RULES = [
    (re.compile(r"\bQLabel\s*\(|\bnew QLabel\b|\bQLabel\s+\w+\s*[;({]|\bpublic QLabel\b"),
     "a label may take its text for markup; use PlainLabel (platform/ui/PlainText.h)"),
    (re.compile(r"\bQMessageBox\s*\(|\bnew QMessageBox\b|\bQMessageBox\s+\w+\s*[;({]|\bpublic QMessageBox\b"
                r"|\bQMessageBox::(?:question|information|warning|critical|about)\b"),
     "a message may be taken for markup; use PlainMessageBox or isConfirmed (platform/ui/PlainText.h)"),
    (re.compile(r"\bQToolTip::showText\b|\bsetWhatsThis\b|\bQErrorMessage\b"
                r"|\bQt::(?:RichText|AutoText|MarkdownText)\b|\bset(?:Html|Markdown)\s*\("),
     "this takes texts for markup"),
]
TOOL_TIP = re.compile(r"\bset(?:Tab)?ToolTip\s*\(([^;]*)\);")
OWN_WORDS = re.compile(r"(?:\d+,\s*)?(?:\w+::)?tr\(\s*\"[^\"]*\"\s*\)")
ADVICE = "a tool tip may be taken for markup; give it plainToolTip(...) (platform/ui/PlainText.h)"


def markup_problems(path, text):
    """(line, what is wrong) for each such place in a source that shows something."""
    if not path.startswith(ROOMS) or path in HOME:
        return
    # Same length, so that places stay what they are.
    code = re.sub(r"//[^\n]*", lambda comment: " " * len(comment.group(0)), text)

    def line_of(match):
        return code.count("\n", 0, match.start()) + 1

    for pattern, advice in RULES:
        for match in pattern.finditer(code):
            yield line_of(match), advice
    for match in TOOL_TIP.finditer(code):
        words = match.group(1)
        if "plainToolTip(" not in words and not OWN_WORDS.fullmatch(words.strip()):
            yield line_of(match), ADVICE
    role = re.search(r"\bQt::ToolTipRole\b", code)
    if role and "plainToolTip(" not in code:
        yield line_of(role), ADVICE
