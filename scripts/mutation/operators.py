"""What can be changed in a source: every mutant is one small change of one place."""

from __future__ import annotations

import re
import zlib
from collections import Counter
from dataclasses import dataclass
from functools import cached_property
from pathlib import Path
from typing import Iterable, Iterator

TOKEN = re.compile(
    r"""
    (?P<skipped>//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:\\\n|[^\n])*)
    |(?P<text>"(?:[^"\\\n]|\\.)*")
    |(?P<character>'(?:[^'\\\n]|\\.)+')
    |(?P<number>\b(?:0[xX][0-9a-fA-F]+|\d+))
    |(?P<word>[A-Za-z_]\w*)
    |(?P<operator><<=|>>=|\.\.\.|->|::|\+\+|--|<<|>>|[<>=!+\-*/%&|^]=|&&|\|\||[^\w\s])
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

# clang-format puts blanks around binary operators, and none around the brackets of
# templates, references and pointers: that tells them apart.
BINARY = {
    "comparison": {
        "==": ["!="],
        "!=": ["=="],
        "<": ["<=", ">="],
        "<=": ["<", ">"],
        ">": [">=", "<="],
        ">=": [">", "<"],
        "&&": ["||"],
        "||": ["&&"],
    },
    "arithmetic": {
        "+": ["-"],
        "-": ["+"],
        "*": ["+"],
        "/": ["*"],
        "%": ["/"],
        "+=": ["-="],
        "-=": ["+="],
        "<<": [">>"],
        ">>": ["<<"],
        "&": ["|"],
        "|": ["&"],
    },
}
STEPS = {"++": "--", "--": "++"}
LIMIT = re.compile(r"[A-Z][A-Z0-9]*(_[A-Z0-9]+)+")
ARRAY_SIZE = re.compile(r"^\s*(?:[\w:<>*&]+ )+[\w.]+\[([^\]]+)\](?: =.*|;)$")
MEMBER = re.compile(r"^( +)\.\w+ = (?P<value>[^{}\n]+),$", re.MULTILINE)
ENUMERATION = re.compile(r"\benum class (\w+)[^{;]*\{([^}]*)\}")


@dataclass(frozen=True)
class Mutant:
    """`before` becomes `after` at a place of a file."""

    file: str
    start: int
    before: str
    after: str
    operator: str
    line_number: int
    line: str  # its text, without the blanks around it
    occurrence: int  # of lines with that text, from 1
    column: int  # in that text

    @cached_property
    def key(self) -> str:
        """Stays the same when the lines around it change."""
        occurrence = f" #{self.occurrence}" if self.occurrence > 1 else ""
        return f"{self.file}: {self.line}{occurrence} @{self.column}: {self.change}"

    @property
    def change(self) -> str:
        return f"{self.before} -> {self.after}"

    @property
    def folder(self) -> str:
        return str(Path(self.file).parent)

    def apply(self, source: str) -> str:
        return source[: self.start] + self.after + source[self.start + len(self.before) :]

    def __str__(self) -> str:
        change = re.sub(r"\s+", " ", self.change)
        return f"{self.file}:{self.line_number}: {change}    | {self.line}"


@dataclass(frozen=True)
class Vocabulary:
    """The names of the library whose values can be changed where they are used."""

    codes: frozenset[str]
    enumerators: dict[str, str]  # "Gate::kAlways" becomes "Gate::kDebug"

    @staticmethod
    def read(codes: str, sources: Iterable[str]) -> Vocabulary:
        enumerators: dict[str, str] = {}
        for source in sources:
            for name, body in ENUMERATION.findall(source):
                members = re.findall(r"\bk\w+", re.sub(r"//.*", "", body))
                for member, other in zip(members, members[1:] + members[:1]):
                    enumerators[f"{name}::{member}"] = f"{name}::{other}"
        names = frozenset(re.findall(r"constexpr int32_t (k\w+)", codes))
        return Vocabulary(names, enumerators)


class Source:
    """A source and its mutants."""

    def __init__(self, file: str, text: str, vocabulary: Vocabulary) -> None:
        self.file = file
        self.text = text
        self._vocabulary = vocabulary
        self._lines: list[tuple[int, str, int]] = []  # where the text begins, it, its occurrence
        same: Counter[str] = Counter()
        offset = 0
        for line in text.split("\n"):
            short = line.strip()
            same[short] += 1
            self._lines.append((offset + len(line) - len(line.lstrip()), short, same[short]))
            offset += len(line) + 1

    def mutants(self) -> list[Mutant]:
        found = [*self._token_mutants(), *self._swaps()]
        return sorted(found, key=lambda mutant: (mutant.start, mutant.after))

    def _mutant(self, start: int, before: str, after: str, operator: str) -> Mutant:
        number = self.text.count("\n", 0, start)
        offset, line, occurrence = self._lines[number]
        column = start - offset
        return Mutant(
            self.file, start, before, after, operator, number + 1, line, occurrence, column
        )

    def _token_mutants(self) -> Iterator[Mutant]:
        tokens = [m for m in TOKEN.finditer(self.text) if m.lastgroup != "skipped"]
        skipped_until = 0
        for i, token in enumerate(tokens):
            if token.start() < skipped_until:
                continue
            before = tokens[i - 1].group() if i else ""
            if token.group() == "static_assert":
                skipped_until = self.text.index(";", token.end())
            elif token.group() == "operator":
                skipped_until = self.text.index("(", token.end())
            elif before in ("extern", "sizeof") or self._is_array_size(token):
                pass
            else:
                for operator, changed, after in self._changes(token, before):
                    yield self._mutant(token.start(), changed, after, operator)

    def _changes(self, token: re.Match[str], before: str) -> Iterator[tuple[str, str, str]]:
        """Its operator, what it changes and into what."""
        text = token.group()
        match token.lastgroup:
            case "text":
                yield "text", text, change_text(text)
            case "character":
                yield "constant", text, change_character(text)
            case "number":
                for after in neighbours(text):
                    yield "constant", text, after
            case "word":
                for operator, after in self._word_changes(token, before):
                    yield operator, text, after
            case "operator":
                for operator, after in self._operator_changes(token):
                    yield operator, text, after

    def _word_changes(self, token: re.Match[str], before: str) -> Iterator[tuple[str, str]]:
        word = token.group()
        following = self.text[token.end() : token.end() + 3]
        if word in ("true", "false"):
            yield "constant", "false" if word == "true" else "true"
        elif word in self._vocabulary.codes and not following.startswith(" = "):
            yield "code", f"({word} - 1)"
        elif word.startswith("k") and before == "::":
            scope = re.search(r"(\w+)::$", self.text[: token.start()])
            other = self._vocabulary.enumerators.get(f"{scope[1]}::{word}" if scope else "")
            if other:
                yield "code", other.split("::")[1]
        elif LIMIT.fullmatch(word) and following[:1] != "(":
            yield "constant", f"({word} - 1)"
            yield "constant", f"({word} + 1)"

    def _operator_changes(self, token: re.Match[str]) -> Iterator[tuple[str, str]]:
        operator = token.group()
        if operator in STEPS:
            yield "arithmetic", STEPS[operator]
        elif operator == "!":
            yield "comparison", ""
        elif self._stands_free(token):
            for kind, changes in BINARY.items():
                for after in changes.get(operator, []):
                    yield kind, after

    def _stands_free(self, token: re.Match[str]) -> bool:
        before = self.text[token.start() - 1]
        after = self.text[token.end() : token.end() + 1]
        return before in " \n" and after in " \n"

    def _is_array_size(self, token: re.Match[str]) -> bool:
        start = self.text.rfind("\n", 0, token.start()) + 1
        end = self.text.find("\n", start)
        size = ARRAY_SIZE.match(self.text[start:end])
        return bool(size) and start + size.start(1) <= token.start() < start + size.end(1)

    def _swaps(self) -> Iterator[Mutant]:
        """The values of two members of a table's row, one under the other, change places."""
        members = list(MEMBER.finditer(self.text))
        for one, other in zip(members, members[1:]):
            a, b = one["value"], other["value"]
            if one.end() + 1 == other.start() and one[1] == other[1] and a != b:
                before = self.text[one.start("value") : other.end("value")]
                between = self.text[one.end("value") : other.start("value")]
                yield self._mutant(one.start("value"), before, b + between + a, "swap")


def neighbours(number: str) -> list[str]:
    value = int(number, 0)
    return [str(value + 1)] if value == 0 else [str(value - 1), str(value + 1)]


def change_character(character: str) -> str:
    if character[1] == "\\" or character[1] in "&[":
        return "'~'"
    return f"'{chr(ord(character[1]) + 1)}'"


def change_text(text: str) -> str:
    """Another letter at some place; another sign in a text without letters."""
    conversions = re.compile(r"%[-0-9]*[a-z]|\\.")
    protected = {i for m in conversions.finditer(text) for i in range(*m.span())}
    plain = [i for i in range(1, len(text) - 1) if i not in protected]
    places = [i for i in plain if text[i].isalpha()] or plain
    if not places:
        return '"~"' if text == '""' else '""'
    place = places[zlib.crc32(text.encode()) % len(places)]
    letter = text[place]
    other = {"z": "y", "Z": "Y"}.get(letter, chr(ord(letter) + 1)) if letter.isalpha() else "~"
    return text[:place] + other + text[place + 1 :]
