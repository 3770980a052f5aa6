# SPDX-License-Identifier: Apache-2.0
"""Finds what can be changed in a C++ source for a mutation pass: statements to leave out,
conditions and truth values to turn round, operands to drop, results to replace by an empty one. It
reads tokens, not types; what does not compile is dropped by its caller."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"(?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)"
    r'|(?P<text>R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\')'
    r"|(?P<word>[A-Za-z_]\w*)|(?P<number>\.?\d['\w.]*)"
    r"|(?P<sign><=>|<<=|->|::|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|.)",
    re.DOTALL | re.MULTILINE,
)
PAIRS = {"(": ")", "[": "]", "{": "}"}
TYPE_HEADS = {"class", "struct", "union", "enum", "namespace", "extern"}
DECLARING = {"const", "auto", "static", "constexpr", "using", "typedef", "template", "friend"}
DECLARING |= {"static_assert", "unsigned", "thread_local"} | TYPE_HEADS
COMPARISONS = {"==", "!=", "<=", ">=", "&&", "||", "!", "<", ">"}
EDGES = {",", ";", "return", "=", "?", ":", "+=", "-="}
EMPTY = {"", "{}", "nullptr", "0", "noErr", "QString()", "std::nullopt"}


@dataclass
class Mutant:
    """One change: what is inserted before and behind a stretch of the source."""

    kind: str
    start: int
    end: int
    before: str
    behind: str
    line: int = 0
    last_line: int = 0
    code: str = ""
    number: int = 0
    path: str = ""

    def inserted(self, text):
        return text.replace("@", f"::orvek_mutants::is({self.number})")


class Finder:
    """Walks over the tokens of one source."""

    def __init__(self, source):
        self.source = source
        found = [m for m in TOKEN.finditer(source) if m.lastgroup != "skip"]
        self.tokens = [m.group(0) for m in found]
        self.words = [m.lastgroup == "word" for m in found]
        self.starts = [m.start() for m in found]
        self.ends = [m.end() for m in found]
        self.partner = self.match_brackets()
        self.mutants = []

    def match_brackets(self):
        partner, opened = {}, []
        for i, token in enumerate(self.tokens):
            if token in PAIRS:
                opened.append(i)
            elif token in PAIRS.values() and opened:
                j = opened.pop()
                partner[i], partner[j] = j, i
        return partner

    def find(self):
        self.walk(0, len(self.tokens))
        for mutant in self.mutants:
            mutant.line = self.source.count("\n", 0, mutant.start) + 1
            mutant.last_line = self.source.count("\n", 0, mutant.end) + 1
            mutant.code = " ".join(self.source[mutant.start : mutant.end].split())[:100]
        return self.mutants

    def add(self, kind, first, behind_last, before, behind):
        self.mutants.append(
            Mutant(kind, self.starts[first], self.ends[behind_last - 1], before, behind)
        )

    def walk(self, i, end):
        """Declarations and expressions: what counts in them is code in braces."""
        while i < end:
            if self.tokens[i] == "{" and self.is_code(i):
                self.block(i + 1, self.partner[i])
                i = self.partner[i]
            elif self.tokens[i] == "{" and "enum" in self.head(i):
                i = self.partner[i]
            i += 1

    def head(self, i):
        """The tokens of the declaration that leads to the brace at i."""
        j = i
        while j > 0 and self.tokens[j - 1] not in (";", "{", "}", ")"):
            j -= 1
        return self.tokens[j:i]

    def is_code(self, i):
        if i == 0 or TYPE_HEADS & set(self.head(i)):
            return False
        previous = self.tokens[i - 1]
        if previous in (")", "else", "do", "try", "override", "noexcept", "mutable"):
            return True
        if previous == "const":
            return self.tokens[i - 2] == ")"
        if previous == "]":  # a lambda's captures, not an array's size
            opening = self.partner[i - 1]
            before = self.tokens[opening - 1]
            return before not in (")", "]") and (
                not self.words[opening - 1] or before == "return"
            )
        j = i - 1  # a result's type behind "->"
        while self.words[j] or self.tokens[j] in ("::", "<", ">", "*", "&"):
            j -= 1
        return self.tokens[j] == "->" and self.tokens[j - 1] == ")"

    def block(self, i, end):
        while i < end:
            i = self.statement(i, end)

    def statement(self, i, end):
        """Gives where the next statement begins."""
        token = self.tokens[i]
        if token == "{":
            self.block(i + 1, self.partner[i])
            return self.partner[i] + 1
        if token in ("case", "default"):
            return self.until(i, end, ":") + 1
        if token in ("if", "while", "for", "switch"):
            return self.compound(i, end)
        if token == "do":
            i = self.statement(i + 1, end)
        behind = self.until(i, end, ";") + 1
        self.simple(i, behind)
        return behind

    def until(self, i, end, sign):
        while i < end - 1 and self.tokens[i] != sign:
            i = self.partner[i] + 1 if self.tokens[i] in PAIRS else i + 1
        return i

    def compound(self, i, end):
        opening = self.until(i, end, "(")
        if self.tokens[i + 1] == "constexpr":
            opening = i + 2
        closing = self.partner[opening]
        behind = self.statement(closing + 1, end)
        if self.tokens[i] == "if" and behind < end and self.tokens[behind] == "else":
            behind = self.statement(behind + 1, end)
        if self.tokens[i + 1] != "constexpr":
            self.condition(self.tokens[i], opening + 1, closing)
        self.leave_out(i, behind)
        return behind

    def condition(self, keyword, first, closing):
        self.expression(first, closing)
        parts = [first - 1]
        while (at := self.until(parts[-1] + 1, closing, ";")) < closing:
            if self.tokens[at] != ";":
                break
            parts.append(at)
        if keyword == "switch" or (keyword == "for" and len(parts) == 1):
            return
        first = parts[1 if keyword == "for" else -1] + 1
        closing = parts[2] if keyword == "for" else closing
        if first == closing or self.tokens[first:closing] == ["true"]:
            return
        name = self.until(first, closing, "=")
        if self.tokens[name] == "=":
            turned = f"; @ != static_cast<bool>({self.tokens[name - 1]})"
            self.add("invert", first, closing, "", turned)
        else:
            self.invert(first, closing)

    def invert(self, first, behind):
        self.add("invert", first, behind, "(@ != static_cast<bool>(", "))")

    def leave_out(self, first, behind):
        self.add("leave out", first, behind, "{ if (!@) { ", " } }")

    def simple(self, first, behind):
        """A statement that ends with a semicolon."""
        self.expression(first, behind - 1)
        token = self.tokens[first]
        if behind - first < 2:
            return
        if token == "return" and behind - first > 2:
            self.result(first, behind)
        elif token == "while":
            self.condition("while", first + 2, behind - 2)
        elif not self.declares(first):
            self.leave_out(first, behind)
        else:
            at = self.until(first, behind, "=")
            if self.tokens[at] == "=" and self.tokens[at - 2] == "bool":
                self.invert(at + 1, behind - 1)

    def result(self, first, behind):
        value = self.source[self.starts[first + 1] : self.starts[behind - 1]].strip()
        level = list(self.level(first + 1, behind - 1))
        signs = [i for i in level if self.tokens[i] in COMPARISONS]
        spaced = [i for i in signs if self.tokens[i] not in "<>" or self.is_spaced(i)]
        chosen = any(self.tokens[i] == "?" for i in level)
        if value in ("true", "false") or (spaced and not chosen):
            self.invert(first + 1, behind - 1)
        elif value not in EMPTY and not value.startswith("{"):
            self.add("empty result", first, behind, "{ if (@) return {}; ", " }")

    def level(self, i, end):
        """The tokens outside brackets."""
        while i < end:
            yield i
            i = self.partner[i] + 1 if self.tokens[i] in PAIRS else i + 1

    def is_spaced(self, i):
        """Comparisons stand between spaces, the brackets of templates do not."""
        return self.source[self.starts[i] - 1] == " " and self.source[self.ends[i]] in " \n"

    def declares(self, i):
        if self.tokens[i] in DECLARING:
            return True
        if not self.words[i] or self.tokens[i] in ("delete", "new", "throw", "return", "break"):
            return False
        while self.words[i] or self.tokens[i] in ("::", "<"):
            if self.words[i] and self.words[i + 1]:
                return True
            if self.tokens[i] == "<" and self.words[i := self.behind_angle(i)]:
                return True
            i += self.words[i] or self.tokens[i] == "::"
        return self.tokens[i] in ("*", "&", "&&") and self.words[i + 1]

    def behind_angle(self, i):
        depth = 0
        while self.tokens[i] not in (";", "{", "}"):
            depth += {"<": 1, ">": -1}.get(self.tokens[i], 0)
            i += 1
            if depth == 0:
                break
        return i

    def expression(self, first, behind):
        self.walk(first, behind)
        i = first
        while i < behind:
            if self.tokens[i] == "{" and self.is_code(i):
                i = self.partner[i]
            elif self.tokens[i] in ("&&", "||"):
                self.operands(i, first, behind)
            elif self.tokens[i] == "?":
                self.invert(self.left_edge(i, first, EDGES), i)
            i += 1

    def left_edge(self, i, first, edges):
        while i > first and self.tokens[i - 1] not in edges and self.tokens[i - 1] not in PAIRS:
            i = self.partner[i - 1] if self.tokens[i - 1] in PAIRS.values() else i - 1
        return i

    def right_edge(self, i, behind, edges):
        while i < behind and self.tokens[i] not in edges and self.tokens[i] not in PAIRS.values():
            i = self.partner[i] + 1 if self.tokens[i] in PAIRS else i + 1
        return i

    def operands(self, i, first, behind):
        """Each operand of a chain once: the left one of its first sign, the right one of each."""
        sign = self.tokens[i]
        edges = EDGES | ({"&&", "||"} if sign == "&&" else {"||"})
        before, end = ("(@ || (", "))") if sign == "&&" else ("(!@ && (", "))")
        left = self.left_edge(i, first, edges)
        if left == first or self.tokens[left - 1] != sign:
            self.add("drop operand", left, i, before, end)
        right = self.right_edge(i + 1, behind, edges)
        if right > i + 1:
            self.add("drop operand", i + 1, right, before, end)


def find_mutants(path, source):
    """The mutants of a source, in the order of their places. They are not numbered yet."""
    found = Finder(source).find()
    for mutant in found:
        mutant.path = path
    return sorted(found, key=lambda m: (m.start, -m.end, m.kind))


def instrument(source, mutants):
    """The source with every change in it, each asleep until its number is asked for."""
    pieces = []
    for m in mutants:
        length = m.end - m.start
        pieces.append((m.start, 1, -length, m.number, m.inserted(m.before)))
        pieces.append((m.end, 0, length, -m.number, m.inserted(m.behind)))
    text, at = [], 0
    for place, _, _, _, piece in sorted(pieces):
        text += [source[at:place], piece]
        at = place
    return "".join(text) + source[at:]
