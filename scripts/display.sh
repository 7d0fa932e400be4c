# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# To be sourced by a script that shows the game on a virtual display and has a function `fail`, which
# says what is wrong and ends the script. Gives it a folder, $work, which goes at its end with all
# that is in it, as do the processes of the list `processes`, the last one first.

work=$(mktemp -d)
processes=()

stop() {
  trap - EXIT
  local i
  for ((i = ${#processes[@]} - 1; i >= 0; --i)); do
    kill "${processes[i]}" 2>/dev/null || true
    wait "${processes[i]}" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap stop EXIT

wait_until() { # WHAT CONDITION...: up to half a minute; leaves in $work/seen what CONDITION printed
  local what=$1 rounds=300
  shift
  until "$@" >"$work/seen" 2>/dev/null; do
    ((rounds-- > 0)) || fail "$what"
    sleep 0.1
  done
}

start_display() { # WIDTHxHEIGHT: sets DISPLAY, and `display` to the server's process; its messages
  # go to $work/display. A display that was started before goes on.
  local folder
  folder=$(mktemp -d "$work/screen.XXXXXX")
  screen=$folder/Xvfb_screen0 # what the display shows, kept current by the X server
  rm -f "$work/number"
  Xvfb -displayfd 3 -screen 0 "$1x24" -fbdir "$folder" -nolisten tcp -noreset \
    3>"$work/number" 2>"$work/display" &
  display=$!
  processes+=("$display")
  wait_until "the virtual display did not start" test -s "$work/number"
  DISPLAY=:$(<"$work/number")
  export DISPLAY
}

save_picture() { # FILE.png: what the display shows
  xwdtopnm -quiet "$screen" | pnmcrop -quiet -black | pnmtopng -quiet >"$1"
}
