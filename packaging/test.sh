#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Installs the package in a fresh Debian 12 root, opens a puzzle there as a double click does, uses
# the game, removes it, and fails when a trace is left. Needs root, a Debian mirror and 1 GB of disk.
#   packaging/test.sh [PACKAGE.deb]
# Without PACKAGE.deb it is built first. Pictures of the window are left in build-package/pictures.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
((EUID == 0)) || { echo "packaging/test.sh: only root can make a root folder." >&2 && exit 1; }
package=${1:-$(packaging/build.sh | tail -n 1)}
scripts/setup.sh picture package fresh-root

work=$(mktemp -d)
root=$work/root
player=/home/player # the folder of the player, in the root

clean_up() {
  umount "$root/proc" 2>/dev/null || true
  rm -rf --one-file-system "$work"
}
trap clean_up EXIT

fail() {
  echo "packaging/test.sh: $1" >&2
  exit 1
}

in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 "$@"; }

as_player=(chroot --userspec=player "$root" env -u XDG_RUNTIME_DIR -u XDG_DATA_DIRS
  -u DBUS_SESSION_BUS_ADDRESS HOME="$player" PATH=/usr/local/bin:/usr/bin:/bin LANG=C.UTF-8)

apt() {
  if ! in_root DEBIAN_FRONTEND=noninteractive apt-get -qy "$@" >"$work/apt.log" 2>&1; then
    tail -n 20 "$work/apt.log" >&2
    fail "apt-get $1 failed"
  fi
}

make_root() {
  local mirror
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Codename: bookworm' | head -n 1)
  debootstrap --variant=minbase bookworm "$root" "${mirror:-http://deb.debian.org/debian}" \
    >"$work/debootstrap.log" || { tail "$work/debootstrap.log" >&2 && return 1; }
  mount -t proc proc "$root/proc"
  # The way to the mirror is that of this machine; no service is to start in here.
  apt-config dump | grep -E '^Acquire::(https?::Proxy|Check-)' >"$root/etc/apt/apt.conf.d/90machine" ||
    true
  printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
  chmod +x "$root/usr/sbin/policy-rc.d"
  in_root useradd --create-home --home-dir "$player" player
  cp "$package" "$root/game.deb"
  apt update
}

# Everything but the player's folder, and what apt and dpkg write of any package.
state() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ".$player" -o -path ./tmp -o -path ./var/log \
    -o -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache/apt \) -prune -o \
    \( -type f -exec md5sum {} + \) -o -printf '%y %p %l\n' | sort)
}

what_is_pulled_in() { # besides the package itself
  in_root apt-get -s install /game.deb | sed -n 's/^Inst \([^ ]*\) .*/\1/p' | grep -vx "$name"
}

install_package() {
  in_root apt-get --assume-no install /game.deb | grep -E 'newly installed|Need to get|After this' ||
    true
  echo "That was to come on a system without anything; now without recommended packages:"
  in_root apt-get --assume-no --no-install-recommends install /game.deb |
    grep -E 'newly installed|Need to get|After this' || true
  apt install $(what_is_pulled_in)
  apt clean
  state >"$work/before"
  apt install /game.deb
}

check_registration() {
  local type
  type=$("${as_player[@]}" xdg-mime query filetype "$player/a puzzle.sdk")
  [[ $type == application/x-sudoku-grid ]] || fail "puzzle files have the type $type"
  [[ $("${as_player[@]}" xdg-mime query default "$type") == "$name.desktop" ]] ||
    fail "the game does not open puzzle files"
  [[ $(in_root sudoku --version) == "SuDoKu $version" ]] || fail "the command does not answer"
}

prepare_player() { # with a viewer that writes down what it is given
  local home=$root$player
  mkdir -p "$home/.local/share/applications"
  cp packaging/puzzle.sdk "$home/a puzzle.sdk"
  printf '[Desktop Entry]\nType=Application\nName=Viewer\nExec=%s/viewer %%f\nMimeType=%s;\n' \
    "$player" application/pdf >"$home/.local/share/applications/viewer.desktop"
  printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>%s/opened\n' "$player" >"$home/viewer"
  chmod +x "$home/viewer"
  in_root chown -R player: "$player"
  "${as_player[@]}" xdg-mime default viewer.desktop application/pdf
}

check_that_nothing_is_left() {
  apt purge "$name"
  apt clean
  state >"$work/after"
  diff "$work/before" "$work/after" || fail "the package left the traces above"
  if in_root dpkg-query -W "$name" 2>/dev/null; then fail "dpkg still knows the package"; fi
}

name=$(dpkg-deb -f "$package" Package)
version=$(dpkg-deb -f "$package" Version)
echo "Making a fresh Debian 12 root."
make_root
echo "Installing $name $version in it:"
install_package
prepare_player
check_registration
echo "Opening a puzzle as a double click does."
touch "$root$player/opened"
in_root chown player: "$player/opened"
packaging/play.sh "$root$player/a puzzle.sdk" "$root$player/opened" build-package/pictures \
  "${as_player[@]}" xdg-open "$player/a puzzle.sdk"
echo "Removing it."
check_that_nothing_is_left
echo "Nothing is left of it but what apt and dpkg wrote down: /var/log, /var/lib/dpkg, /var/lib/apt."
