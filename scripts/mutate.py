#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""Changes lines of the product at random, one at a time, and looks whether a test of the tiers
quick or window notices. It works on copies of what is committed; a run that was interrupted is
carried on by the same command."""

import argparse
import queue
import signal
import subprocess
import sys
import threading
import time
from pathlib import Path

sys.dont_write_bytecode = True

from mutation.places import FOLDERS, all_mutations, choose, is_product
from mutation.processes import Processes, Stopped
from mutation.results import Results, progress, survivors, table
from mutation.tiers import NotGreen, Tiers
from mutation.tree import BuildFailed, Tree, committed_files
from mutation.trial import try_out

ROOT = Path(__file__).resolve().parent.parent


def arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--seed", type=int, default=1, help="which choice of lines (1)")
    parser.add_argument("--count", type=int, default=200, help="how many mutants (200)")
    parser.add_argument("--folder", choices=FOLDERS, metavar="FOLDER",
                        help="only there and below: " + ", ".join(FOLDERS))
    parser.add_argument("--at", metavar="FILE:LINE", help="every mutation of one line")
    parser.add_argument("--jobs", type=int, default=2, help="how many at a time, each in its copy (2)")
    parser.add_argument("--time-limit", type=float, default=10, metavar="SECONDS",
                        help="a test may take five times its usual time and this (10)")
    parser.add_argument("--list", action="store_true", help="print the choice and try nothing")
    parser.add_argument("--place", type=Path, default=ROOT / "build-mutate", metavar="FOLDER",
                        help="where copies and results are kept (build-mutate)")
    return parser.parse_args()


def head_commit():
    command = ["git", "rev-parse", "--short=12", "HEAD"]
    return subprocess.run(command, cwd=ROOT, check=True, capture_output=True, text=True).stdout.strip()


def product_texts():
    return {file: content.decode() for file, (content, _) in committed_files(ROOT).items()
            if is_product(file, None)}


def chosen_by(options):
    mutations = all_mutations(product_texts(), options.folder)
    if options.at:
        return [one for one in mutations if f"{one.file}:{one.line}" == options.at]
    return choose(mutations, options.seed, options.count)


class Run:
    """The mutants that are still to be tried, by several workers."""

    def __init__(self, options, chosen, results):
        self._options, self._results, self._count = options, results, len(chosen)
        self._processes, self.fault = Processes(), None
        self._preparing, self._telling = threading.Lock(), threading.Lock()
        self._waiting = queue.SimpleQueue()
        for mutation in chosen:
            if not results.has(mutation):
                self._waiting.put(mutation)
        self._done = self._count - self._waiting.qsize()

    def run(self):
        workers = [threading.Thread(target=self._work, args=[number])
                   for number in range(min(self._options.jobs, self._waiting.qsize()))]
        for worker in workers:
            worker.start()
        try:
            for worker in workers:
                worker.join()
        except KeyboardInterrupt:
            self._processes.stop()
            for worker in workers:
                worker.join()
            raise

    def _work(self, number):
        try:
            tree, tiers = self._prepare(number)
            while True:
                self._tell(try_out(tree, tiers, self._waiting.get_nowait()))
        except (queue.Empty, Stopped):
            pass
        except (BuildFailed, NotGreen, OSError, subprocess.CalledProcessError) as fault:
            self.fault = fault
            self._processes.stop()

    def _prepare(self, number):
        """One copy after the other, so that the second finds what the first compiled."""
        with self._preparing:
            tree = Tree(ROOT, self._options.place / f"tree-{number + 1}", self._processes)
            print(f"Building {tree.path} and running its tests.", flush=True)
            tree.prepare()
            tiers = Tiers(tree, self._options.time_limit)
            tiers.measure()
        return tree, tiers

    def _tell(self, result):
        with self._telling:
            self._results.add(result)
            self._done += 1
            print(progress(result, self._done, self._count), flush=True)


def list_choice(chosen):
    for mutation in chosen:
        print(f"{mutation.file}:{mutation.line}: {mutation.kind}")


def report(results, start):
    print(f"\n{table(results)}\n\nSurvivors:\n\n{survivors(results)}\n")
    print(f"It took {(time.monotonic() - start) / 60:.0f} minutes.")


def main():
    options, start = arguments(), time.monotonic()
    chosen = chosen_by(options)
    if options.list:
        return list_choice(chosen)
    subprocess.run([ROOT / "scripts/setup.sh", "play", "test", "mutate"], check=True)
    options.place.mkdir(parents=True, exist_ok=True)
    results = Results(options.place / f"results-{head_commit()}.jsonl")
    run = Run(options, chosen, results)
    signal.signal(signal.SIGTERM, signal.default_int_handler)  # ends as Ctrl+C does
    try:
        run.run()
    except KeyboardInterrupt:
        print("Interrupted; the same command carries on.")
    report(results.of(chosen), start)
    if run.fault:
        sys.exit(f"{type(run.fault).__name__}: {run.fault}")


if __name__ == "__main__":
    main()
