# SPDX-License-Identifier: Apache-2.0
#
# The vocabulary that the printer descriptions are written in, and the one place that knows the PPD
# syntax. Knows nothing of any printer.

from dataclasses import dataclass, field, replace

from source import texts

BASE_LANGUAGE = "en"
WRITTEN_LANGUAGES = ("de", "fr", "ja")  # of each text, beside it
OTHER_LANGUAGES = WRITTEN_LANGUAGES + texts.LANGUAGES
MAXIMUM_TEXT_BYTES = 80  # PPD translation strings; readers keep fixed buffers of this size
MAXIMUM_LINE_BYTES = 255


@dataclass(frozen=True)
class Text:
    en: str
    de: str
    fr: str
    ja: str

    def in_language(self, language):
        if language in (BASE_LANGUAGE, *WRITTEN_LANGUAGES):
            return getattr(self, language)
        text = texts.translated(self.en, language)
        if text:
            return text
        # Names like "A4" are the same everywhere.
        if self.en == self.de == self.ja:
            return self.en
        raise ValueError(f"source/texts.py lacks {self.en!r}")

    def __post_init__(self):
        for text in map(self.in_language, (BASE_LANGUAGE, *OTHER_LANGUAGES)):
            if not text or len(text.encode()) > MAXIMUM_TEXT_BYTES:
                raise ValueError(f"a PPD text has 1 to {MAXIMUM_TEXT_BYTES} bytes: {text!r}")


@dataclass(frozen=True)
class Choice:
    keyword: str
    text: Text
    code: str  # PostScript for the printer; empty where choosing needs none


@dataclass(frozen=True)
class Option:
    keyword: str
    text: Text
    choices: tuple
    default: str
    kind: str = "PickOne"
    order: int = 10  # place in the printer's set-up; 0: the option is not sent at all

    def with_default(self, default):
        return replace(self, default=default)

    def without(self, *keywords):
        return replace(self, choices=tuple(c for c in self.choices if c.keyword not in keywords))


@dataclass(frozen=True)
class Group:
    keyword: str
    text: Text
    options: tuple


@dataclass(frozen=True)
class Paper:
    keyword: str
    text: Text
    width: int  # points
    height: int


@dataclass(frozen=True)
class Constraint:
    """What can't be combined: (option, choice) terms. Choice None: any but none, off and false."""

    terms: tuple
    name: str = ""  # names a constraint of more than two terms, and its way out
    way_out: str = ""


def page_device(dictionary):
    return f"<<{dictionary}>>setpagedevice"


@dataclass
class Document:
    lines: list = field(default_factory=list)

    def add(self, line=""):
        if len(line.encode()) > MAXIMUM_LINE_BYTES:
            raise ValueError(f"a PPD line has at most {MAXIMUM_LINE_BYTES} bytes: {line}")
        self.lines.append(line)

    def comment(self, text=""):
        self.add(f"*% {text}".rstrip())

    def value(self, keyword, value):
        self.add(f"*{keyword}: {value}")

    def quoted(self, keyword, value):
        self.add(f'*{keyword}: "{value}"')

    def choice(self, option, choice):
        self.add(f'*{option.keyword} {choice.keyword}/{choice.text.en}: "{choice.code}"')

    def option(self, option):
        if option.default not in [choice.keyword for choice in option.choices]:
            raise ValueError(f"{option.keyword} has no choice {option.default}")
        self.add(f"*OpenUI *{option.keyword}/{option.text.en}: {option.kind}")
        if option.order:
            self.add(f"*OrderDependency: {option.order} AnySetup *{option.keyword}")
        self.add(f"*Default{option.keyword}: {option.default}")
        for choice in option.choices:
            self.choice(option, choice)
        self.add(f"*CloseUI: *{option.keyword}")
        self.add()

    def group(self, group):
        self.add(f"*OpenGroup: {group.keyword}/{group.text.en}")
        self.add()
        for option in group.options:
            self.option(option)
        self.add(f"*CloseGroup: {group.keyword}")
        self.add()

    def translation(self, language, keyword, text):
        """A text that is not a choice's: `keyword` is an option's or a group's."""
        self.add(f'*{language}.Translation {keyword}/{text.in_language(language)}: ""')

    def choice_translation(self, language, option, choice, text):
        self.add(f'*{language}.{option} {choice}/{text.in_language(language)}: ""')

    def text(self):
        return "\n".join(self.lines) + "\n"


def applies(constraint, options):
    """Whether a printer with these options (by keyword) can meet the constraint at all."""
    for option, choice in constraint.terms:
        if option == "CustomPageSize":
            continue
        if option not in options:
            return False
        if choice is not None and choice not in [c.keyword for c in options[option].choices]:
            return False
    return True


def write_term(term):
    option, choice = term
    return f"*{option} {choice}" if choice else f"*{option}"


def write_constraint(document, constraint):
    """Two terms go in the form that every reader of PPD files knows, and in both directions."""
    terms = [write_term(term) for term in constraint.terms]
    if constraint.name:
        document.add(f'*cupsUIConstraints {constraint.name}: "{" ".join(terms)}"')
        return
    document.add(f"*UIConstraints: {terms[0]} {terms[1]}")
    document.add(f"*UIConstraints: {terms[1]} {terms[0]}")
