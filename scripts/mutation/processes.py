# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""Programs that may do anything, since they are built of wrong sources: each runs in a session of
its own, with limits, and nothing of it is left when its time is over or the run is ended."""

import os
import resource
import signal
import subprocess
import threading

MEMORY = 4 << 30
FILE_SIZE = 256 << 20


class Stopped(Exception):
    """The whole run is to end."""


def limit_resources():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Processes:
    """Those that run at the moment, so that stop() can end them from another thread."""

    def __init__(self):
        self._running, self._lock, self._stopping = set(), threading.Lock(), False

    def stop(self):
        with self._lock:
            self._stopping = True
            for process in self._running:
                end_session_of(process)

    def run(self, command, seconds, limits=True, **options):
        """The exit status and what was printed; the status None when the time was over."""
        with self._lock:
            if self._stopping:
                raise Stopped
            process = subprocess.Popen(
                command, start_new_session=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT, errors="replace",
                preexec_fn=limit_resources if limits else None, **options)
            self._running.add(process)
        try:
            return self._wait(process, seconds)
        finally:
            with self._lock:
                self._running.discard(process)
                stopping = self._stopping
            if stopping:
                raise Stopped

    def _wait(self, process, seconds):
        try:
            output, _ = process.communicate(timeout=seconds)
            return process.returncode, output
        except subprocess.TimeoutExpired:
            return None, ""
        finally:
            end_session_of(process)
            process.wait()
            process.stdout.close()


def end_session_of(process):
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
