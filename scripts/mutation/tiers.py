# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""The tests of the tiers quick and window, a process for all that one program tests."""

import collections
import itertools
import json
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

# They look at sources, which a mutant need not keep in order, and at archives.
LEFT_OUT = "layers."
PATIENCE = 5  # times what a test takes without a mutation


class NotGreen(Exception):
    """A test that fails without a mutation."""


@dataclass
class Group:
    """Tests that one process runs."""

    name: str
    command: list
    environment: dict
    tier: str
    folder: str  # of the build, where they run
    programs: frozenset = frozenset()
    seconds: float = 0.0

    def tests(self, product_folder):
        """They stand in the folder of tests for that folder of the product, or below it."""
        return f"/tests/{product_folder}/" in f"{self.folder}/"

    @property
    def makes_guides(self):
        return self.name == "guide_test"


def properties_of(test):
    return {entry["name"]: entry["value"] for entry in test["properties"]}


def without_filter(argument):
    return "--gtest_fail_fast" if argument.startswith("--gtest_") else argument


def groups_of(tests):
    """What ctest would run, put together by program; its own filters are left away."""
    arguments = collections.defaultdict(list)
    for test in tests:
        properties = properties_of(test)
        label = properties.get("LABELS", [""])[0]
        if label in {"quick", "window"} and not test["name"].startswith(LEFT_OUT):
            key = (test["command"][0], tuple(properties.get("ENVIRONMENT", [])), label,
                   properties["WORKING_DIRECTORY"])
            arguments[key] += map(without_filter, test["command"][1:])
    return [Group(Path(program).name, [program, *dict.fromkeys(words)],
                  dict(entry.split("=", 1) for entry in environment), label, folder)
            for (program, environment, label, folder), words in arguments.items()]


class Tiers:
    """The tests of one tree, which must be built and not mutated when this is made."""

    def __init__(self, tree, time_limit):
        self._tree, self._time_limit = tree, time_limit
        listed = subprocess.run(["ctest", "--test-dir", str(tree.build), "--show-only=json-v1"],
                                check=True, capture_output=True, env=tree.environment())
        groups = groups_of(json.loads(listed.stdout)["tests"])
        for group in groups:
            group.programs = self._programs_of(group)
        self.groups = [group for group in groups if group.programs]
        programs = set().union(*(group.programs for group in self.groups))
        self._hashes = {name: tree.hash_of(name) for name in programs}

    def _programs_of(self, group):
        """Its own and those that it starts, as far as the build knows."""
        build = self._tree.build
        named = [Path(word).relative_to(build).as_posix() for word in group.command
                 if Path(word).is_relative_to(build)]
        return frozenset().union(*(self._tree.programs_of(name) for name in named))

    def measure(self):
        """Runs all of them, which must pass, and notes how long each takes."""
        for group in self.groups:
            start = time.monotonic()
            status, output = self._run(group, 600)
            if status != 0:
                raise NotGreen(f"{group.name} fails without a mutation:\n{output[-2000:]}")
            group.seconds = time.monotonic() - start

    def _run(self, group, seconds):
        """(exit status, None when the time was over; output). What fails must fail twice: on a busy
        machine a window may be late."""
        for _ in range(2):
            status, output = self._tree.run_test(group.command, seconds, group.folder,
                                                 group.environment)
            if status in {0, None}:
                break
        return status, output

    def stages(self, file):
        """Those of the file's folder first, then the other quick ones, the window, and the guides,
        which take longest to build; in each stage the short ones first. Of a header, which many
        programs are built from, each is a stage of its own."""
        own = self._of_folder(Path(file).parent)

        def rank(group):
            return 0 if group in own else 3 if group.makes_guides else 1 + (group.tier == "window")
        ordered = sorted(self.groups, key=lambda group: (rank(group), group.seconds))
        if file.endswith(".hpp"):
            return [[group] for group in ordered]
        return [list(stage) for _, stage in itertools.groupby(ordered, key=rank)]

    def _of_folder(self, folder):
        """The tests of the folder, of the nearest above it that has some."""
        found = [group for group in self.groups if group.tests(folder.as_posix())]
        return found if found or folder == Path(".") else self._of_folder(folder.parent)

    def failure(self, groups):
        """The first of them that fails, and how: '' when all pass. A test is run only when a
        program that it needs is another one than without a mutation."""
        for group in groups:
            if self._is_changed(group):
                status, _ = self._run(group, self._time_limit + PATIENCE * group.seconds)
                if status != 0:
                    return group.name + ("" if status is not None else " (time)")
        return ""

    def _is_changed(self, group):
        return any(self._tree.hash_of(name) != self._hashes[name] for name in group.programs)


def programs(groups):
    return sorted(set().union(*(group.programs for group in groups)))
