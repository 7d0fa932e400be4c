#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# A new version is written in all places that name it, and nothing is written where one is missing.
#   write_release.sh SOURCES
set -euo pipefail
sources=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0

fail() {
  echo "$1"
  failures=$((failures + 1))
}

copy_sources() {
  rm -rf "${tree:?}"/*
  mkdir "$tree/packaging"
  cp "$sources/CMakeLists.txt" "$tree"
  cp "$sources"/packaging/{changelog.in,sudoku-pas-a-pas.metainfo.xml.in} "$tree/packaging"
  cat >"$tree/CHANGELOG.md" <<'END'
# Changelog

## [Unreleased]

### Added

- Something new, of which there is so much to tell that it takes more than one line in the package's
  own list.
- More.

## [1.0.0] - 2026-11-21

### Added

- The game.
END
}

write() { "$sources/scripts/write_release.sh" "$@" "$tree"; }

expect() { # FILE LINES: stand in the file, one after the other
  grep -qzF "$2" "$tree/$1" || fail "$1 lacks: $2"
}

copy_sources
write 98.7.6 2031-02-03
expect CMakeLists.txt 'project(SuDoKu VERSION 98.7.6 '
expect CHANGELOG.md $'## [Unreleased]\n\n## [98.7.6] - 2031-02-03\n\n### Added\n\n- Something new'
expect packaging/changelog.in $'  * Something new, of which there is so much to tell that it takes more than\n    one line in the package\'s own list.\n  * More.\n\n -- the SuDoKu team <team@@host@>  Mon, 03 Feb 2031 00:00:00 +0000\n\nsudoku-pas-a-pas ('
expect packaging/sudoku-pas-a-pas.metainfo.xml.in \
  $'  <releases>\n    <release version="98.7.6" date="2031-02-03"/>'
! grep -q 'The game' "$tree/packaging/changelog.in" || fail "an old change is told as new"
! command -v dpkg-parsechangelog >/dev/null ||
  [[ $(dpkg-parsechangelog -l "$tree/packaging/changelog.in" -S Version) == 98.7.6 ]] ||
  fail "the package's changelog is not one"

refused() { # REASON ARGUMENT...
  local reason=$1 before output
  shift
  before=$(cat "$tree"/*.* "$tree"/packaging/*)
  if output=$(write "$@" 2>&1); then fail "$* was not refused"; fi
  [[ $output == *"$reason"* ]] || fail "$*: $output"
  [[ $before == "$(cat "$tree"/*.* "$tree"/packaging/*)" ]] || fail "$* changed something"
}

refused 'nothing that is unreleased' 99.0.0 2031-02-03
copy_sources
refused 'no version' 1.1 2031-02-03
refused 'no date' 98.7.6 today
refused 'no date' 98.7.6 2031-02-30
refused 'no version'

refused_for_want_of() { # FILE
  copy_sources
  sed -i '/^project(/d; /<releases>/d' "$tree/$1"
  refused "$1 has no place" 98.7.6 2031-02-03
}
refused_for_want_of CMakeLists.txt
refused_for_want_of packaging/sudoku-pas-a-pas.metainfo.xml.in

# More than a pipe takes at once.
copy_sources
for ((i = 0; i < 120; ++i)); do echo "- A change of which there are very many, number $i."; done |
  sed -i '/^- More/r /dev/stdin' "$tree/CHANGELOG.md"
write 98.7.6 2031-02-03
expect packaging/changelog.in '  * A change of which there are very many, number 119.'

exit $((failures > 0))
