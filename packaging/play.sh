#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Uses an installed game on a virtual display: looks whether the puzzle is on the board, writes a
# digit by the menu of the cell, asks for the guide in both languages, and quits by the French box;
# then shows the candidates on a display smaller than the window. Fails at the first thing that is
# wrong.
#   packaging/play.sh PUZZLE.sdk OPENED PICTURES COMMAND...
# COMMAND starts the game with PUZZLE.sdk; whatever the system opens documents with must append
# their paths or addresses to the file OPENED. Pictures of the window are left in the folder PICTURES.
set -euo pipefail
puzzle=$1 opened=$2 pictures=$3
shift 3

source "$(dirname "${BASH_SOURCE[0]}")/../scripts/display.sh"

fail() {
  take_picture failure 2>/dev/null || true
  echo "packaging/play.sh: $1" >&2
  exit 1
}

take_picture() { # NAME
  sleep 0.5 # let the painting end
  save_picture "$pictures/$1.png"
}

window_named() { xdotool search --onlyvisible --name "$1"; } # prints its number

press() { # NAME OF THE BUTTON
  case $1 in # where its middle is, in pixels of a window at scale 1
    help) xdotool mousemove --window "$window" 543 69 ;;
    quit) xdotool mousemove --window "$window" 635 69 ;;
  esac
  xdotool click 1
}

# Writes 1 in the first cell, which is to be empty, by the mouse alone.
use_menu() {
  xdotool mousemove --window "$window" 126 132 click 3
  take_picture menu
  xdotool mousemove_relative 35 20 click 1
}

copied() {
  xdotool key ctrl+a ctrl+c
  xclip -o -selection clipboard -t UTF8_STRING | tr ' ' . | tr -cd '1-9.' | grep -Fx "$1"
}

start_game() { # COMMAND...
  "$@" &
  game=$!
  processes+=("$game")
  wait_until "no window with the name of the puzzle" window_named "${puzzle##*/}"
  window=$(<"$work/seen")
}

quit_game() { # PICTURE OF ITS QUESTION
  press quit
  wait_until "no box asks before the end" window_named '^SuDoKu [0-9.]*$'
  take_picture "$1"
  xdotool key alt+o # Oui
  wait_until "the game did not end at Oui" eval "! kill -0 $game"
  wait "$game" || fail "the game ended with status $?"
}

turn_wheel() { # BUTTON: 4 up, 5 down
  xdotool mousemove --window "$window" 300 300 click --repeat 10 "$1"
}

wide() { xdotool getwindowgeometry --shell "$window" | grep -Fx WIDTH=800; }

guide_opened() { grep -Ex "(file://)?/.*/lib/sudoku/$1" "$opened"; }

mkdir -p "$pictures"
: >"$opened"
start_display 1600x1200
start_game "$@"
take_picture window
digits=$(tr -cd '1-9.' <"$puzzle")
wait_until "the puzzle is not on the board" copied "$digits"

use_menu
wait_until "the menu of the cell wrote no digit" copied "1${digits:1}"
xdotool key ctrl+z
wait_until "the digit was not undone" copied "$digits"

press help
wait_until "the French guide was not opened" guide_opened Sudoku_Fr.pdf
xdotool key F1
take_picture english
press help
wait_until "the English guide was not opened" guide_opened Sudoku_En.pdf

xdotool key F2
quit_game quit

start_display 800x600
start_game "$@"
turn_wheel 5
take_picture small
xdotool mousemove --window "$window" 382 520 click 1 # shows the candidates, below the grid
wait_until "the candidates are not shown on a small screen" wide
turn_wheel 4
quit_game small_wide
echo "The game was used: its puzzle, its guides in both languages, its end; a small screen too."
