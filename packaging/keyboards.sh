#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Presses the keys of seven countries' keyboards on a virtual display, and fails when a digit is not
# typed or anything else is. Prints for each keyboard what its keys typed.
#   packaging/keyboards.sh [PROGRAM]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
program=${1:-build/bin/sudoku}
scripts/setup.sh keyboards

layouts=(fr 'fr(bepo)' be 'ch(fr)' us de cz)
# Keys as X11 numbers them, from left to right or from 1 to 9.
digit_row=(10 11 12 13 14 15 16 17 18)
keypad=(87 88 89 83 84 85 79 80 81)
beside_row=(49 19 20 21) # ² and à ) = on a French keyboard
declare -A modifier_key=([Shift]=50 [Ctrl]=37 [AltGr]=108)
right=114 down=116 home=110 num_lock=77

source scripts/display.sh

fail() {
  echo "packaging/keyboards.sh: $1" >&2
  exit 1
}

start_game() { # on a grid whose cells can all be typed in
  printf '.........\n%.0s' {1..9} >"$work/empty.sdk"
  env HOME="$work" XDG_RUNTIME_DIR="$work" XDG_CONFIG_HOME="$work" XDG_DATA_HOME="$work" \
    LANG=C.UTF-8 QT_QPA_PLATFORM=xcb "$program" "$work/empty.sdk" &
  processes+=($!)
  wait_until "no window" xdotool search --onlyvisible --name empty.sdk
}

set_layout() { # fr, or fr(bepo)
  local name=${1%%(*} variant=
  if [[ $1 == *'('* ]]; then variant=${1#*(} variant=${variant%)}; fi
  setxkbmap -layout "$name" -variant "$variant"
  sleep 0.5 # until the game has heard of it
}

# Adds key presses to the list `keys`, which xdotool is to make.
press() { # KEY [MODIFIER]...
  local key=$1 modifier
  shift
  for modifier in "$@"; do keys+=(keydown "${modifier_key[$modifier]}"); done
  keys+=(key "$key")
  for modifier in "$@"; do keys+=(keyup "${modifier_key[$modifier]}"); done
}

# Presses keys from the first cell of a row on, one in each cell, and goes to the next row.
fill_row() { # "KEY..." [MODIFIER]...
  local places key
  read -ra places <<<"$1"
  shift
  press $home
  for key in "${places[@]}"; do
    press "$key" "$@"
    press $right
  done
  press $home
  press $down
}

fill_grid() {
  keys=()
  fill_row "${digit_row[*]}"
  fill_row "${digit_row[*]}" Shift
  fill_row "${digit_row[*]}" Ctrl
  fill_row "${digit_row[*]}" AltGr
  fill_row "${keypad[*]}"
  fill_row "${keypad[*]}" Ctrl
  fill_row "${beside_row[*]}"
  fill_row "${beside_row[*]}" Shift
  press "${keypad[0]}" # a sign that all keys before have come
  xdotool "${keys[@]}"
}

grid_has_sign() {
  xdotool key ctrl+a key ctrl+c
  xclip -o -selection clipboard -t UTF8_STRING | tr -d '\t\r' | tr ' ' . >"$work/grid"
  [[ $(tail -n 1 "$work/grid") == 1* ]]
}

empty_grid() { xdotool key ctrl+a key Delete key ctrl+Home; }

# Without NumLock the keypad moves: right and down, to the middle of the first box.
move_by_keypad() {
  keys=(key ctrl+Home)
  press $num_lock
  press "${keypad[5]}"
  press "${keypad[1]}"
  press $num_lock
  press "${digit_row[4]}"
  press $home
  for _ in {1..7}; do press $down; done
  press "${keypad[0]}"
  xdotool "${keys[@]}"
}

check() { # ROW EXPECTED WHAT
  local typed
  typed=$(sed -n "$1p" "$work/grid")
  printf ' %s' "$typed"
  [[ $typed == "$2" ]] || wrong+=("$layout: $3 typed $typed")
}

all=123456789 none=.........
wrong=()
start_display 1024x768
start_game
xdotool key $num_lock
printf '%-10s %-9s %-9s %-9s %-9s %-9s %-9s %-9s %-9s\n' layout row 'Shift row' 'Ctrl row' \
  'AltGr row' keypad 'Ctrl kp' beside 'Sh beside'
for layout in "${layouts[@]}"; do
  set_layout "$layout"
  empty_grid
  fill_grid
  wait_until "$layout: the keys do not come" grid_has_sign
  printf '%-10s' "$layout"
  check 1 $all "the digit row"
  check 2 $all "the digit row with Shift"
  check 3 $all "the digit row with Ctrl"
  # The American keyboard has a second Alt in the place of AltGr.
  if [[ $layout == us ]]; then check 4 $all "the digit row with Alt"; else
    check 4 $none "the digit row with AltGr"
  fi
  check 5 $all "the keypad"
  check 6 $all "the keypad with Ctrl"
  check 7 $none "the keys beside the nine"
  check 8 $none "the keys beside the nine with Shift"
  echo
done
empty_grid
move_by_keypad
wait_until "the keypad without NumLock: the keys do not come" grid_has_sign
echo -n "Keypad without NumLock, to the second row:"
check 2 .5....... "the keypad without NumLock"
echo
((${#wrong[@]} == 0)) || fail "$(printf '%s\n' "${wrong[@]}")"
echo "Every keyboard types its digits, and nothing else does."
