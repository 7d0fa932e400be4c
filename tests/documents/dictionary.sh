#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Looks whether the words of a dictionary are said where it says so, and the others nowhere.
#   dictionary.sh ROOT DICTIONARY.md    names each that is not as told; exit status 1 when there is any
set -euo pipefail
export LC_ALL=C.UTF-8
dictionary=$(realpath "$2")
cd "$1"
faults=0 rows=0

fault() {
  echo "$1"
  faults=$((faults + 1))
}

expect() { # WORD FILE-OR-FOLDER
  grep -rqiF -- "$1" "$2" || fault "$2 does not say \"$1\""
}

expect_pair() { # ENGLISH FRENCH PLACE
  case $3 in
    docs/guide/) expect "$1" docs/guide/en.md && expect "$2" docs/guide/fr.md ;;
    *) expect "$1" "$3" && expect "$2" "$3" ;;
  esac
}

refuse() { # WORD, also in the plural
  local found
  found=$(grep -rniwE -- "$1s?" docs/guide explanations | cut -c1-100 || true)
  [[ -z $found ]] || fault "\"$1\" is said: $found"
}

# The cells of a list, one a line; what stands in brackets is for the reader.
listed() { sed -E 's/\([^)]*\)|`//g; s/^ +| +$//g; s/ +, *|, +/\n/g' <<<"$1" | sed -E 's/^ +| +$//g'; }

while IFS='|' read -r _ english french places others; do
  rows=$((rows + 1))
  english=$(listed "$english") french=$(listed "$french")
  for place in $(listed "$places"); do
    expect_pair "$english" "$french" "$place"
  done
  while read -r word; do
    [[ -z $word ]] || refuse "$word"
  done < <(listed "${others%|*}")
done < <(grep '^|' "$dictionary" | tail -n +3)

((rows > 0)) || fault "$2 has no rows"
((faults == 0))
