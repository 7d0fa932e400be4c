#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Runs a program on a virtual display, saves a picture of its window and waits until it ends.
#   scripts/run_without_display.sh PICTURE.png PROGRAM [ARGUMENT...]
# Ctrl-C and TERM end the program and the display.
set -euo pipefail
picture=$1
shift

work=$(mktemp -d)
screen=$work/Xvfb_screen0 # what the display shows, kept current by the X server
server=
program=

stop() {
  trap - EXIT
  local process
  for process in $program $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$work"
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
  cp "$screen" "$work/seen"
  sleep 0.3
  cmp -s "$screen" "$work/seen"
}

save_picture() {
  xwdtopnm -quiet "$screen" | pnmcrop -quiet -black | pnmtopng -quiet >"$picture"
}

export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work} # Qt complains when there is none
trap stop EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

echo "Starting the game on a virtual display."
Xvfb -displayfd 3 -screen 0 1600x1200x24 -fbdir "$work" -nolisten tcp -noreset \
  3>"$work/number" 2>"$work/messages" &
server=$!
if ! wait_for 20 "$server" test -s "$work/number"; then
  cat "$work/messages" >&2
  echo "The virtual display did not start." >&2
  exit 1
fi
cp "$screen" "$work/blank"

DISPLAY=:$(<"$work/number") QT_QPA_PLATFORM=xcb "$@" &
program=$!
if wait_for 60 "$program" is_painted && save_picture; then
  echo "A picture of the window is in $picture; Ctrl-C ends the game."
else
  echo "No window was seen." >&2
fi
wait "$program"
