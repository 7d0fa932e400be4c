#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Ends the game at random moments of a random game, by the signals that tell a program to end and by
# taking its display away, and looks at what it leaves behind: its exit status, the grid in the
# player's data folder, nothing in the temporary folder, and a saved file that is whole.
#   scripts/end_suddenly.sh [ROUNDS [SEED [PROGRAM]]]     (50, 1, build/bin/sudoku)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
rounds=${1:-50} program=${3:-build/bin/sudoku}
RANDOM=${2:-1}
if ! [[ $rounds =~ ^[1-9][0-9]*$ ]]; then
  echo "scripts/end_suddenly.sh: $rounds is no number of rounds" >&2
  exit 1
fi

source scripts/display.sh

fail() {
  echo "scripts/end_suddenly.sh: round $round, $ending after $moment: $1" >&2
  cat "$work/errors" >&2 || true
  exit 1
}

start_game() {
  rm -rf "$work/tmp" "$work/data" "$work/saved.sdk"
  mkdir -p "$work/tmp" "$work/data" "$work/home"
  start_display 1100x800
  env -u tmp QT_QPA_PLATFORM=xcb TMPDIR="$work/tmp" XDG_DATA_HOME="$work/data" HOME="$work/home" \
    "$program" packaging/puzzle.sdk 2>"$work/errors" &
  game=$!
  processes+=("$game")
  wait_until "no window" xdotool search --onlyvisible --name .
  xdotool windowfocus --sync "$(xdotool search --onlyvisible --name . | head -n 1)"
}

click() { xdotool mousemove "$(($1 + left))" "$(($2 + top))" click 1; }

# One thing that a player does; what is open then is what the end finds.
act() {
  local where X Y WINDOW SCREEN WIDTH HEIGHT
  # A box may go while it is looked at.
  where=$(xdotool search --onlyvisible --name . getwindowgeometry --shell %1 2>/dev/null) || return 0
  eval "$where"
  local left=$X top=$Y
  case $((RANDOM % 7)) in
    0) moment=digit; click $((30 + RANDOM % 460)) $((130 + RANDOM % 460)); xdotool key $((RANDOM % 9 + 1)) ;;
    1) moment=hint; click 243 69 ;;
    2) moment=answer; xdotool key Return ;;
    3) moment=candidates; click 382 598 ;;
    4) moment=new; click 35 69 ;;
    5) moment=solve; click 335 69 ;;
    6) moment=save; click 126 69; sleep 0.2; xdotool type "$work/saved.sdk"; xdotool key Return ;;
  esac
}

end_game() {
  case $ending in
    display) kill "$display" ;;
    *) kill -"$ending" "$game" ;;
  esac
}

expected_status() {
  case $ending in
    TERM) echo 143 ;; HUP) echo 129 ;; INT) echo 130 ;; display) echo 1 ;;
  esac
}

is_whole() { [[ $(tr -d ' \r\n' <"$1" | wc -c) == 81 ]]; }

check_remains() { # STATUS
  local file
  [[ $1 == "$(expected_status)" ]] || fail "exit status $1"
  compgen -G "$work/data/sudoku/SuDoKu-*.sdk" >/dev/null || fail "no grid was rescued"
  for file in "$work"/data/sudoku/*.sdk "$work"/saved.sdk; do
    [[ ! -e $file ]] || is_whole "$file" || fail "$file is not whole"
  done
  ! compgen -G "$work/tmp/sudoku-*" >/dev/null || fail "the exchange folder is left"
}

endings=(TERM HUP INT display)
for ((round = 1; round <= rounds; ++round)); do
  ending=${endings[RANDOM % 4]} moment=start
  start_game
  for ((i = RANDOM % 8; i > 0; --i)); do
    act
    sleep "0.$((RANDOM % 3))"
  done
  end_game
  status=0
  wait "$game" || status=$?
  kill "$display" 2>/dev/null || true
  wait "$display" 2>/dev/null || true
  processes=()
  check_remains "$status"
  echo "round $round: $ending after $moment"
done
echo "$rounds ends, and no grid was lost."
