#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Writes a new version wherever the sources name it, with what CHANGELOG.md has as unreleased.
#   scripts/write_release.sh X.Y.Z DATE [FOLDER]    with DATE as YYYY-MM-DD; FOLDER holds the sources
set -euo pipefail
version=${1:-}
date=${2:-}
cd "${3:-$(dirname "${BASH_SOURCE[0]}")/..}"
package=packaging/sudoku-pas-a-pas

fail() {
  echo "scripts/write_release.sh: $1" >&2
  exit 1
}

unreleased() { sed -n '/^## \[Unreleased\]/,/^## \[[0-9]/p' CHANGELOG.md | grep -v '^## '; }

changes() { # one a line
  unreleased | awk '/^- / { if (change) print change; change = substr($0, 3) }
                    /^  / { change = change " " substr($0, 3) }
                    END { print change }'
}

debian_entry() {
  printf 'sudoku-pas-a-pas (%s) unstable; urgency=medium\n\n' "$version"
  local change
  while read -r change; do
    fold -s -w 74 <<<"$change" | sed '1s/^/  * /; 2,$s/^/    /; s/ *$//'
  done < <(changes)
  printf '\n -- the SuDoKu team <team@@host@>  %s\n\n' "$(date -u -R -d "$date 00:00:00Z")"
}

prepare() { # FILE SED-COMMAND: which has to change something
  sed "$2" "$1" >"$new/${1##*/}"
  ! cmp -s "$1" "$new/${1##*/}" || fail "$1 has no place for version $version"
}

[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || fail "$version is no version X.Y.Z"
[[ $date =~ ^[0-9]{4}-[0-9]{2}-[0-9]{2}$ ]] && date -d "$date" >/dev/null 2>&1 ||
  fail "$date is no date YYYY-MM-DD"
[[ -n $(changes) ]] || fail "CHANGELOG.md has nothing that is unreleased"

# Nothing is written before everything is known to have its place.
new=$(mktemp -d)
trap 'rm -rf "$new"' EXIT
prepare CMakeLists.txt "s/^project(SuDoKu VERSION [0-9.]*/project(SuDoKu VERSION $version/"
prepare $package.metainfo.xml.in "s|^  <releases>|&\n    <release version=\"$version\" date=\"$date\"/>|"
prepare CHANGELOG.md "s/^## \[Unreleased\]/&\n\n## [$version] - $date/"
printf '%s\n\n%s\n' "$(debian_entry)" "$(<packaging/changelog.in)" >"$new/changelog.in"
for file in CMakeLists.txt CHANGELOG.md $package.metainfo.xml.in packaging/changelog.in; do
  cat "$new/${file##*/}" >"$file"
done
