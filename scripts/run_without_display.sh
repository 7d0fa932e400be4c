#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Runs a program on a virtual display, saves a picture of its window and waits until it ends.
#   scripts/run_without_display.sh PICTURE.png PROGRAM [ARGUMENT...]
# Ctrl-C and TERM end the program and the display.
set -euo pipefail
picture=$1
shift

source "$(dirname "${BASH_SOURCE[0]}")/display.sh"

fail() {
  cat "$work/display" >&2
  echo "scripts/run_without_display.sh: $1" >&2
  exit 1
}

wait_for() { # SECONDS PROCESS CONDITION...: fails when the process ends or the time is over
  local rounds=$(($1 * 10)) process=$2
  shift 2
  until "$@"; do
    if ((rounds-- == 0)) || ! kill -0 "$process" 2>/dev/null; then return 1; fi
    sleep 0.1
  done
}

is_painted() { # the screen is no longer blank, and has come to rest
  ! cmp -s "$screen" "$work/blank" || return 1
  cp "$screen" "$work/painted"
  sleep 0.3
  cmp -s "$screen" "$work/painted"
}

export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work} # Qt complains when there is none
trap 'exit 130' INT
trap 'exit 143' TERM

echo "Starting the game on a virtual display."
start_display 1600x1200
cp "$screen" "$work/blank"

QT_QPA_PLATFORM=xcb "$@" &
program=$!
processes+=("$program")
if wait_for 60 "$program" is_painted && save_picture "$picture"; then
  echo "A picture of the window is in $picture; Ctrl-C ends the game."
else
  echo "No window was seen." >&2
fi
wait "$program"
