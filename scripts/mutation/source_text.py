# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""A C++ source as tokens, with as much of its structure as choosing mutations needs.

It is read without a compiler: what it takes for a statement or a call need not be one in sources
laid out otherwise than .clang-format has it.
"""

import bisect
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\\\n]|\\.)*)
  | (?P<string>(?:u8|[uUL])?(?:R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"))
  | (?P<character>'(?:\\.|[^'\\\n])+')
  | (?P<number>\d(?:[eE][+-]|[\w.']|)*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|\.\.\.|->\*|::|->|\+\+|--|<<|>>|[-+*/%&|^<>=!]=|&&|\|\||[^\s\w])
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

OPENING = {"(": ")", "[": "]", "{": "}"}
CLOSING = set(OPENING.values())
BEFORE_BLOCKS = {")", "]", "}", ";", "else", "do", "try"}
CONTROLS = {"if", "for", "while", "switch", "catch"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


NO_TOKEN = Token("none", "", 0, 0)


class SourceText:
    """`tokens` are without comments and directives; all positions are indices into them."""

    def __init__(self, text):
        self.text = text
        self.tokens = [
            Token(found.lastgroup, found.group(), found.start(), found.end())
            for found in TOKEN.finditer(text)
            if found.lastgroup not in ("comment", "directive")
        ]
        self._line_starts = [0] + [found.end() for found in re.finditer("\n", text)]
        self._pair_brackets()

    def _pair_brackets(self):
        """`partner` of each bracket, and the bracket that each token lies directly in (-1: none)."""
        self.partner, self.parent, open_ones = {}, [], []
        for i, token in enumerate(self.tokens):
            if token.text in CLOSING and open_ones:
                opened = open_ones.pop()
                self.partner[opened], self.partner[i] = i, opened
            self.parent.append(open_ones[-1] if open_ones else -1)
            if token.text in OPENING:
                open_ones.append(i)

    def token(self, i):
        return self.tokens[i] if 0 <= i < len(self.tokens) else NO_TOKEN

    def at(self, i):
        return self.token(i).text

    def line(self, i):
        """The line of a token, counted from 1."""
        return bisect.bisect_right(self._line_starts, self.tokens[i].start)

    def between(self, first, last):
        """The text from one token to another, both included."""
        return self.text[self.tokens[first].start : self.tokens[last].end]

    def is_spaced(self, i):
        """Blanks stand on both sides: of the operators, the binary ones."""
        token = self.tokens[i]
        around = self.text[token.start - 1 : token.start] + self.text[token.end : token.end + 1]
        return len(around) == 2 and around.isspace()

    def is_block(self, i):
        """The brace at `i` opens statements rather than a list, a type or a namespace."""
        if self.at(i) != "{":
            return False
        before = i - 1
        while self.at(before) in {"const", "noexcept", "override", "mutable"}:
            before -= 1
        if self.at(before) == ":":
            return self._ends_label(before)
        return self.at(before) in BEFORE_BLOCKS or self._ends_result_type(before)

    def _ends_result_type(self, i):
        while self.token(i).kind == "name" or self.at(i) in {"::", "<", ">", "&", "*", ","}:
            i -= 1
        return self.at(i) == "->" and self.at(i - 1) in {")", "const", "noexcept", "mutable"}

    def block_of(self, i):
        """The innermost block around a token, -1 outside of all."""
        opened = self.parent[i]
        while opened != -1 and not self.is_block(opened):
            opened = self.parent[opened]
        return opened

    def starts_statement(self, i):
        opened = self.parent[i]
        if opened == -1 or not self.is_block(opened):
            return False
        before = i - 1
        if self.at(before) == ")":
            return self.at(self.partner.get(before, 0) - 1) in CONTROLS | {"constexpr"}
        return before == opened or self.at(before) in {";", "{", "}", "else", "do"} or (
            self.at(before) == ":" and self._ends_label(before))

    def _ends_label(self, i):
        before = i
        while self.at(before) not in {";", "{", "}", "case", "default", "?", ""}:
            before -= 1
        return self.at(before) in {"case", "default"}

    def end_of_statement(self, i):
        """The semicolon that ends the statement beginning at `i`, or the bracket around it."""
        while self.at(i) != ";" and self.at(i) not in CLOSING and i < len(self.tokens):
            i = self.partner.get(i, i) + 1
        return i

    def arguments(self, opened):
        """(first, last) of each of what stands between commas inside a bracket."""
        closed, first, found = self.partner[opened], opened + 1, []
        for i in range(opened + 1, closed + 1):
            if i == closed or (self.at(i) == "," and self.parent[i] == opened):
                if first < i:
                    found.append((first, i - 1))
                first = i + 1
        return found
