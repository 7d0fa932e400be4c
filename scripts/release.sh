#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Releases a version: writes it where the sources name it, commits, tags the commit, runs all checks,
# builds the package in two folders and compares the two. All of it happens in a clone; only when
# everything went well do the commit and the tag come to this branch, and the package to build/.
#   scripts/release.sh X.Y.Z [--no-page] [--dry-run]
# --no-page allows a release whose page has no address yet; --dry-run does everything in the clone
# and brings nothing here.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
placeholder=https://sudoku.example.org/

fail() {
  echo "scripts/release.sh: $1" >&2
  exit 1
}

read_arguments() {
  version='' page_needed=1 dry_run=0
  local argument
  for argument; do
    case $argument in
      --no-page) page_needed=0 ;;
      --dry-run) dry_run=1 ;;
      -*) fail "there is no option $argument" ;;
      *) version=$argument ;;
    esac
  done
  [[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || fail "tell the version, as X.Y.Z"
}

present_version() { sed -n 's/^project(SuDoKu VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

check_state() {
  [[ -z $(git status --porcelain) ]] || fail "the tree is not clean"
  git symbolic-ref -q HEAD >/dev/null || fail "no branch is checked out"
  ! git rev-parse -q --verify "refs/tags/v$version" >/dev/null || fail "there is a tag v$version"
  local newest
  newest=$(printf '%s\n' "$version" "$(present_version)" | sort -V | tail -n 1)
  [[ $newest == "$version" && $version != "$(present_version)" ]] ||
    fail "version $version does not follow $(present_version)"
  if ((page_needed)) && grep -qF "set(SUDOKU_PAGE \"$placeholder\"" CMakeLists.txt; then
    fail "CMakeLists.txt has no address of the page yet (SUDOKU_PAGE); --no-page goes without"
  fi
}

write_release() { # in the clone
  scripts/write_release.sh "$version" "$(date -u +%F)"
  git commit -qam "Version $version"
  git tag -a -m "SuDoKu $version" "v$version"
}

build_twice() { # in the folder of the clone
  git clone -q tree again
  local folder
  for folder in tree again; do
    "$folder/packaging/build.sh"
  done
  package=$(ls tree/build-package/packages/*.deb)
  cmp "$package" again/build-package/packages/*.deb || fail "two builds of the package differ"
}

read_arguments "$@"
check_state
here=$PWD
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
git clone -q "$here" "$work/tree"
cd "$work/tree"
git config user.name "$(git -C "$here" config user.name)"
git config user.email "$(git -C "$here" config user.email)"
write_release
.ci/run
cd "$work"
build_twice

if ((dry_run)); then
  git -C tree --no-pager show --stat v"$version"
  echo "Version $version could be released; nothing was changed here."
  exit 0
fi
cd "$here"
# The tag comes last: where the branch went on meanwhile, nothing is left behind.
git pull -q --ff-only --no-tags "$work/tree" HEAD ||
  fail "the branch or its files changed meanwhile; nothing was changed here"
git fetch -q "$work/tree" tag "v$version"
mkdir -p build
cp "$work/$package" build/
echo "Released: version $version, tag v$version, build/${package##*/}"
