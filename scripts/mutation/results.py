# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""What became of the mutants: kept in a file, a line each, so that a run can be carried on."""

import collections
import json

from mutation.places import FOLDERS
from mutation.trial import KILLED, NOT_BUILT, SURVIVED


class Results:
    def __init__(self, file):
        self._file, self._found = file, {}
        if file.exists():
            for line in file.read_text(encoding="utf-8").splitlines():
                self._note(json.loads(line))

    def _note(self, result):
        self._found[result["key"]] = result

    def has(self, mutation):
        return mutation.key in self._found

    def add(self, result):
        self._note(result)
        with self._file.open("a", encoding="utf-8") as stream:
            stream.write(json.dumps(result, ensure_ascii=False) + "\n")

    def of(self, mutations):
        return [self._found[mutation.key] for mutation in mutations if self.has(mutation)]


def table_row(name, results):
    counts = collections.Counter(result["outcome"] for result in results)
    by_time = sum(result["reason"].endswith("(time)") for result in results)
    return f"{name:14}{len(results):8}{counts[KILLED]:8}{by_time:9}{counts[SURVIVED]:10}" \
           f"{counts[NOT_BUILT]:15}"


def table(results):
    """By folder; those that were killed because a test did not end are among the killed."""
    rows = [f"{'folder':14}{'mutants':>8}{KILLED:>8}{'by time':>9}{SURVIVED:>10}{NOT_BUILT:>15}"]
    for folder in FOLDERS:
        own = [result for result in results if result["folder"] == folder]
        if own:
            rows.append(table_row(folder, own))
    return "\n".join([*rows, table_row("together", results)])


def survivors(results):
    paragraphs = []
    for result in sorted(results, key=lambda result: (result["file"], result["line"])):
        if result["outcome"] == SURVIVED:
            head = f"{result['file']}:{result['line']}: {result['kind']}"
            paragraphs.append("\n".join([head, *("    " + line for line in result["diff"])]))
    return "\n\n".join(paragraphs)


def progress(result, number, count):
    reason = f" by {result['reason']}" if result["reason"] else ""
    return f"[{number}/{count}] {result['file']}:{result['line']}: {result['kind']}: " \
           f"{result['outcome']}{reason}, {result['seconds']} s"
