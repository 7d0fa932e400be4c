#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Installs what is missing, builds everything and runs the tests.
#   ./test.sh [TIER]    with TIER one of: quick window deep; all of them without
# SUDOKU_PRESET names another CMake preset than release to build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
preset=${SUDOKU_PRESET:-release}
tier=${1:-}

case $tier in
  '' | quick | window | deep) ;;
  *) echo "./test.sh: the tiers are quick, window and deep" >&2 && exit 2 ;;
esac

scripts/setup.sh play test
echo "Building the game and its tests."
cmake --preset "$preset" -D BUILD_TESTING=ON >/dev/null
cmake --build --preset "$preset"

echo "Running the tests: ${tier:-quick (core and transcripts), window (the real window), \
deep (random events)}."
if [[ -z ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then export QT_QPA_PLATFORM=offscreen; fi
progress=
if [[ -t 1 ]]; then progress=--progress; fi
ctest --test-dir build --output-on-failure --no-tests=error -j "$(nproc)" -L "$tier" $progress
