# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

"""A copy of what is committed, with a build of its own, in which one file at a time is mutated."""

import hashlib
import io
import os
import shutil
import subprocess
import tarfile
from pathlib import Path

BUILD_SECONDS = 3600  # of everything; a mutant has less


class BuildFailed(Exception):
    """What the build printed."""


def committed_files(root):
    """Path and (content, mode) of what HEAD holds."""
    archive = subprocess.run(["git", "archive", "HEAD"], cwd=root, check=True, capture_output=True)
    with tarfile.open(fileobj=io.BytesIO(archive.stdout)) as tar:
        return {entry.name: (tar.extractfile(entry).read(), entry.mode)
                for entry in tar if entry.isfile()}


class Tree:
    def __init__(self, root, place, processes):
        self.path, self.build = Path(place), Path(place) / "build"
        self._root, self._processes = root, processes
        self._sandbox = self.path / "sandbox"

    def prepare(self):
        """As committed, built whole. What a run that was ended left mutated is put right."""
        self._write_files(committed_files(self._root))
        self._run(["cmake", "--preset", "mutate"], BUILD_SECONDS)
        self.build_targets([], BUILD_SECONDS)

    def _write_files(self, files):
        for name, (content, mode) in files.items():
            file = self.path / name
            if not file.is_file() or file.read_bytes() != content:
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_bytes(content)
                file.chmod(mode | 0o200)
        for file in [*self.path.rglob("*.[ch]pp"), *self.path.rglob("CMakeLists.txt")]:
            name = file.relative_to(self.path).as_posix()
            if name not in files and not name.startswith("build/"):
                file.unlink()

    def environment(self):
        """Nothing outside of the copy is where a program finds its folders; no display is there."""
        folder = str(self._sandbox)
        kept = {name: value for name, value in os.environ.items()
                if name not in {"DISPLAY", "WAYLAND_DISPLAY"}}
        return kept | {"HOME": folder, "TMPDIR": folder, "XDG_RUNTIME_DIR": f"{folder}/run",
                       "QT_QPA_PLATFORM": "offscreen"}

    def _build_environment(self):
        """With ccache what is built again as it was, in any copy, costs nothing."""
        environment = os.environ | {"QT_QPA_PLATFORM": "offscreen"}
        if shutil.which("ccache"):
            environment |= {"CMAKE_CXX_COMPILER_LAUNCHER": "ccache", "CCACHE_NOHASHDIR": "1",
                            "CCACHE_BASEDIR": str(self.path)}
        return environment

    def _run(self, command, seconds):
        status, output = self._processes.run(command, seconds, limits=False, cwd=self.path,
                                             env=self._build_environment())
        if status != 0:
            raise BuildFailed(output if status is not None else "FAILED: the time is over")

    def build_targets(self, targets, seconds, jobs=1):
        self._run(["ninja", "-C", str(self.build), f"-j{jobs}", *targets], seconds)

    def run_test(self, command, seconds, folder, environment):
        """The exit status, None when the time was over, and what was printed."""
        self._processes.run(["rm", "-rf", str(self._sandbox)], None)
        self._sandbox.mkdir()
        (self._sandbox / "run").mkdir(mode=0o700)
        return self._processes.run(command, seconds, cwd=folder,
                                   env=self.environment() | environment)

    def programs_of(self, target):
        """The programs that a target is built from or needs beside it, itself among them."""
        inputs = self._processes.run(["ninja", "-C", str(self.build), "-t", "inputs", target], None)
        names = {target, *(line for line in inputs[1].splitlines() if "Entering" not in line)}
        return {name for name in names if is_program(self.build / name)}

    def hash_of(self, name):
        return hashlib.sha1((self.build / name).read_bytes()).hexdigest()

    def mutate(self, mutation):
        """The text of the file as it was, for restore()."""
        file = self.path / mutation.file
        text = file.read_text(encoding="utf-8")
        file.write_text(mutation.of(text), encoding="utf-8")
        return text

    def restore(self, mutation, text):
        (self.path / mutation.file).write_text(text, encoding="utf-8")


def is_program(file):
    return file.is_file() and file.read_bytes()[:4] == b"\x7fELF" and file.suffix not in {".o", ".a"}
