#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Checks what a built tree installs and the package made of it, and uses the installed game. Needs no
# root and leaves nothing behind.
#   packaging/check.sh [BUILD-FOLDER]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build-package}
scripts/setup.sh package picture

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
share=$work/usr/share

fail() {
  echo "packaging/check.sh: $1" >&2
  exit 1
}

check_descriptions() {
  desktop-file-validate "$share/applications/sudoku-pas-a-pas.desktop"
  appstreamcli validate --no-net "$share"/metainfo/*.metainfo.xml
  XDG_DATA_DIRS=$share update-mime-database "$share/mime"
  local page
  for page in "$share"/man/man6/*; do
    [[ -z $(man --warnings --encoding UTF-8 -Tutf8 -l "$page" 2>&1 >/dev/null) ]] || fail "$page"
  done
}

type_of() {
  XDG_DATA_DIRS=$share gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'
}

check_package() { # every place that names the version has to name the same
  cpack --config "$build/CPackConfig.cmake" -B "$work/package" >/dev/null
  local package=("$work"/package/*.deb) version
  lintian --fail-on error "${package[0]}"
  version=$(dpkg-deb -f "${package[0]}" Version)
  [[ $(dpkg-parsechangelog -l packaging/changelog.in -S Version) == "$version" ]] ||
    fail "the changelog does not begin with version $version"
  grep -q "<release version=\"$version\"" "$share"/metainfo/*.metainfo.xml ||
    fail "the catalogue entry has no release $version"
  [[ $("$work/usr/bin/sudoku" --version) == "SuDoKu $version" ]] ||
    fail "the program does not say version $version"
  dpkg-deb -c "${package[0]}" | grep ' ./usr/lib/sudoku/zolv.exe$' >/dev/null ||
    fail "the package has no solver beside the program"
}

play_text() { # [COMMAND]: prints the solution of an empty grid, which has many
  printf '%s\n' "$@" 'check Check3 off' 'click Command2' 'click Bouton_GO' 'show MSF' |
    tmp=$work "$work/usr/bin/sudoku-script" | tail -n 9
}

check_solver() { # it answers as the search does; the game as text has it when it asks for it
  local folder=$work/usr/lib/sudoku searched
  searched=$(play_text)
  [[ $searched == 123456789* ]] || fail "the search finds no solution"
  [[ $(play_text "program $folder") == "$searched" ]] ||
    fail "the solver does not answer as the search does"
  mv "$folder/zolv.exe" "$work"
  printf '#!/bin/sh\ntouch asked\n' >"$folder/zolv.exe"
  chmod +x "$folder/zolv.exe"
  play_text >/dev/null
  [[ ! -f $folder/asked ]] || fail "the game as text asks a solver that no script named"
  play_text "program $folder" >/dev/null
  [[ -f $folder/asked ]] || fail "the solver beside the program is not asked"
  mv "$work/zolv.exe" "$folder"
}

use_game() {
  mkdir -p "$work/bin" "$work/home"
  printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"%s/opened"\n' "$work" >"$work/bin/xdg-open"
  chmod +x "$work/bin/xdg-open"
  HOME=$work/home packaging/play.sh "$puzzle" "$work/opened" "$build/pictures" \
    env PATH="$work/bin:$work/usr/bin:$PATH" QT_QPA_PLATFORM=xcb sudoku "$puzzle"
}

echo "Checking what is installed and packaged."
DESTDIR=$work cmake --install "$build" --prefix /usr >/dev/null
puzzle="$work/a puzzle.sdk"
cp packaging/puzzle.sdk "$puzzle"

check_descriptions
[[ $(type_of "$puzzle") == application/x-sudoku-grid ]] || fail "the type of puzzle files is unknown"
check_package
check_solver
use_game
