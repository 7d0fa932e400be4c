#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the game and starts it.
#   ./run.sh [puzzle.sdk]
# SUDOKU_ZOLV=OFF leaves out the companion solver: the game searches by itself.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

build() {
  echo "Building the game."
  local solver=${SUDOKU_ZOLV:-ON} fresh=()
  [[ -f $root/build/build.ninja ]] || fresh=(-D BUILD_TESTING=OFF)
  if ! grep -qsx "SUDOKU_ZOLV:BOOL=$solver" "$root/build/CMakeCache.txt"; then
    (cd "$root" && cmake --preset release -D SUDOKU_ZOLV="$solver" "${fresh[@]}" >/dev/null)
  fi
  cmake --build "$root/build" --target sudoku tools/all
}

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
  "$root/scripts/setup.sh" play
  build
  echo "Starting the game."
  exec "$root/build/bin/sudoku" "$@"
fi
"$root/scripts/setup.sh" play picture
build
exec "$root/scripts/run_without_display.sh" "$root/build/window.png" "$root/build/bin/sudoku" "$@"
