#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Installs the system packages that are missing for what is to be done.
#   scripts/setup.sh SET...    with SET one of: play picture test bench check package keyboards fresh-root fuzz
#                                       mutate coverage
# With everything there it only asks the package database, and changes nothing.
# SUDOKU_SETUP=skip leaves the packages to you.
set -euo pipefail

packages_for() {
  case $1 in
    play) echo g++ cmake ninja-build qt6-base-dev qt6-svg-dev libfontconfig-dev \
      qt6-translations-l10n nlohmann-json3-dev libcli11-dev ;;
    picture) echo xvfb netpbm ;;
    test) echo libgtest-dev qt6-base-private-dev universal-ctags python3 ;;
    bench) echo libbenchmark-dev xvfb ;;
    check) echo clang-format clang-tidy universal-ctags ;;
    package) echo dpkg-dev file lintian desktop-file-utils appstream shared-mime-info \
      libglib2.0-bin man-db groff xdotool xclip ;;
    keyboards) echo xvfb xdotool xclip x11-xkb-utils xkb-data ;;
    fresh-root) echo debootstrap ;;
    fuzz) echo clang libclang-rt-dev ;;
    mutate) echo mold ccache python3 ;;
    coverage) echo gcovr ;;
    *) echo "scripts/setup.sh: no set of packages is called $1" >&2 && return 1 ;;
  esac
}

# A session without X11 needs Qt's own way to Wayland.
packages_for_session() {
  if [[ -n ${WAYLAND_DISPLAY:-} && -z ${DISPLAY:-} ]]; then echo qt6-wayland; fi
}

installed_of() {
  { dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true; } |
    sed -n 's/ installed$//p'
}

missing_of() {
  comm -23 <(printf '%s\n' "$@" | sort -u) <(installed_of "$@" | sort -u)
}

give_up() {
  echo "Set-up: $1" >&2
  echo "  ${missing[*]}" >&2
  echo "Install them (elsewhere than on Debian they may have other names)," >&2
  echo "then start again with SUDOKU_SETUP=skip in the environment." >&2
  exit 1
}

as_root() {
  if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

install_missing() {
  local log
  log=$(mktemp)
  if ((EUID != 0)) && ! command -v sudo >/dev/null; then
    give_up "only root can install packages, and there is no sudo. Missing are:"
  fi
  echo "Set-up: installing ${missing[*]} (the first time takes some minutes)."
  # Old lists may still do, so a failed update is not the end.
  as_root apt-get -q update >"$log" 2>&1 || true
  if ! as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get -qy install --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
    tail -n 20 "$log" >&2
    give_up "apt-get failed (all it said is in $log). Missing are:"
  fi
  rm -f "$log"
}

[[ ${SUDOKU_SETUP:-} != skip ]] || exit 0
wanted=()
for set_name in "$@"; do
  read -ra packages < <(packages_for "$set_name")
  wanted+=("${packages[@]}")
  if [[ $set_name == play ]]; then wanted+=($(packages_for_session)); fi
done

if ! command -v apt-get >/dev/null; then
  missing=("${wanted[@]}")
  give_up "this system has no apt-get. Needed are the Debian packages:"
fi
mapfile -t missing < <(missing_of "${wanted[@]}")
if ((${#missing[@]} == 0)); then
  echo "Set-up: nothing is missing."
else
  install_missing
fi
