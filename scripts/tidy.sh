#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Runs clang-tidy (.clang-tidy says what it looks for) over the product's sources as that build
# compiles them; its generated headers must be there. The tests are left out.
#   scripts/tidy.sh [BUILD]    build/ without
# All sources are looked at before it fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build}
wanted=14

found=$(clang-tidy --version | sed -n 's/.*version \([0-9]*\).*/\1/p')
if [[ $found != "$wanted" ]]; then
  echo "clang-tidy: version $wanted (Debian 12) is needed, found is ${found:-none}" >&2
  exit 1
fi
compiled() { sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$build/compile_commands.json"; }
product() { sed -n "s|^$PWD/||p" | grep -Ev '^(build|tests/|bench/)' | sort -u; }

# The build may be one by g++, with a warning's name that clang does not know. How many warnings of
# headers it did not show it says even when told to be quiet.
compiled | product | xargs -d '\n' -n 4 -P "$(nproc)" \
  clang-tidy -p "$build" --quiet --extra-arg=-Wno-unknown-warning-option \
  2> >(grep -Ev '^[0-9]+ warnings? generated\.$' >&2)
