# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""Which mutations a tree offers, and the blind choice among them."""

import collections
import random
from dataclasses import dataclass

from mutation.kinds import KINDS
from mutation.source_text import SourceText

# The folders of the product; a file belongs to the longest that holds it.
FOLDERS = ["board", "logic", "explanations", "screen", "game", "files", "puzzles", "pas_a_pas",
           "ui", "ui/qt", "tools"]


@dataclass(frozen=True)
class Mutation:
    file: str
    line: int
    kind: str
    start: int
    end: int
    replacement: str

    @property
    def key(self):
        return f"{self.file}:{self.start}-{self.end}:{self.replacement}"

    def of(self, text):
        """The text with the mutation."""
        return text[: self.start] + self.replacement + text[self.end :]


def folder_of(file):
    return max((folder for folder in FOLDERS if file.startswith(folder + "/")), key=len)


def mutations_of(file, text):
    source = SourceText(text)
    return [Mutation(file, source.line(token), kind, start, end, replacement)
            for kind, places in KINDS.items()
            for token, start, end, replacement in places(source)]


def is_product(file, folder):
    """A source of that folder of the product or below it, of any of them with None."""
    tops = tuple(f"{top}/" for top in ([folder] if folder else FOLDERS))
    return file.startswith(tops) and file.endswith((".cpp", ".hpp"))


def all_mutations(files, folder):
    """Of `files`, path and text."""
    return [mutation for file in sorted(files) if is_product(file, folder)
            for mutation in mutations_of(file, files[file])]


def choose(mutations, seed, count):
    """At most one mutation a line, `count` lines: every line that offers one is as likely as any
    other, then every kind it offers. The same seed chooses the same ones of the same sources, and
    begins alike for any count."""
    lines = collections.defaultdict(lambda: collections.defaultdict(list))
    for mutation in mutations:
        lines[mutation.file, mutation.line][mutation.kind].append(mutation)
    chance = random.Random(seed)
    order = sorted(lines)
    chance.shuffle(order)
    return [chance.choice(lines[line][chance.choice(sorted(lines[line]))]) for line in order[:count]]
