#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Writes a new version wherever the sources name it, with what CHANGELOG.md has as unreleased.
#   scripts/write_release.sh X.Y.Z DATE [FOLDER]    with DATE as YYYY-MM-DD; FOLDER holds the sources
set -euo pipefail
version=$1
date=$2
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
  printf '\n -- the SuDoKu team <team@@host@>  %s\n\n' "$(date -u -R -d "$date 12:00:00Z")"
}

replace() { # FILE SED-COMMAND: which has to change something
  sed -i.before "$2" "$1"
  ! cmp -s "$1" "$1.before" || fail "$1 has no place for version $version"
  rm "$1.before"
}

[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || fail "$version is no version X.Y.Z"
[[ $date =~ ^[0-9]{4}-[0-9]{2}-[0-9]{2}$ ]] || fail "$date is no date YYYY-MM-DD"
unreleased | grep -q '^- ' || fail "CHANGELOG.md has nothing that is unreleased"

entry=$(debian_entry)
printf '%s\n\n%s\n' "$entry" "$(<packaging/changelog.in)" >packaging/changelog.new
mv packaging/changelog.new packaging/changelog.in
replace CMakeLists.txt "s/^project(SuDoKu VERSION [0-9.]*/project(SuDoKu VERSION $version/"
replace $package.metainfo.xml.in "s|^  <releases>|&\n    <release version=\"$version\" date=\"$date\"/>|"
replace CHANGELOG.md "s/^## \[Unreleased\]/&\n\n## [$version] - $date/"
