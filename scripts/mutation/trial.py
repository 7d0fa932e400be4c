# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""What becomes of one mutant."""

import time

from mutation.places import folder_of
from mutation.tiers import programs
from mutation.tree import BuildFailed

KILLED, SURVIVED, NOT_BUILT = "killed", "survived", "did not build"
BUILD_SECONDS = 1800  # a header may be part of everything


def outcome_of_failed_build(output, groups):
    """A guide that cannot be made, or never ends, is noticed by whoever builds the game."""
    if "FAILED: bin/Sudoku_" in output or any(group.makes_guides for group in groups):
        return KILLED, "making the guides"
    return NOT_BUILT, ""


def verdict(tree, tiers, mutation):
    """(what became of it, by what)"""
    for groups in tiers.stages(mutation.file):
        try:
            tree.build_targets(programs(groups), BUILD_SECONDS)
        except BuildFailed as fault:
            return outcome_of_failed_build(str(fault), groups)
        failure = tiers.failure(groups)
        if failure:
            return KILLED, failure
    return SURVIVED, ""


def try_out(tree, tiers, mutation):
    """The mutation with its verdict, as a line of the results holds it."""
    start = time.monotonic()
    text = tree.mutate(mutation)
    try:
        outcome, reason = verdict(tree, tiers, mutation)
    finally:
        tree.restore(mutation, text)
    return {"key": mutation.key, "folder": folder_of(mutation.file), "file": mutation.file,
            "line": mutation.line, "kind": mutation.kind, "outcome": outcome, "reason": reason,
            "seconds": round(time.monotonic() - start, 1), "diff": difference(text, mutation)}


def difference(text, mutation):
    """The lines before and after, those that are blank left away."""
    before, after = text.splitlines(), mutation.of(text).splitlines()
    pairs = [(old, new) for old, new in zip(before, after) if old != new]
    return [f"-{old}" for old, _ in pairs] + [f"+{new}" for _, new in pairs if new.strip()]
