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
  [[ $(dpkg-parsechangelog -l packaging/changelog -S Version) == "$version" ]] ||
    fail "the changelog does not begin with version $version"
  grep -q "<release version=\"$version\"" "$share"/metainfo/*.metainfo.xml ||
    fail "the catalogue entry has no release $version"
  [[ $("$work/usr/bin/sudoku" --version) == "SuDoKu $version" ]] ||
    fail "the program does not say version $version"
  if dpkg-deb -c "${package[0]}" | grep zolv; then fail "the package holds the companion solver"; fi
}

check_solver() { # a solver beside the installed programs is found through their links
  local solver=$work/usr/lib/sudoku/zolv.exe
  printf '#!/bin/sh\ntouch asked\n' >"$solver"
  chmod +x "$solver"
  printf '%s\n' 'seed 1' 'click Bouton_GO' | tmp=$work "$work/usr/bin/sudoku-script" >/dev/null
  [[ -f $work/usr/lib/sudoku/asked ]] || fail "an external solver is not found"
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
