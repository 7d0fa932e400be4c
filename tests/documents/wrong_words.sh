#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# The check of a dictionary notices a word that is not said, and one that should not be.
#   wrong_words.sh PATH/TO/dictionary.sh ROOT
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

noticed() { # ROW WHAT-IS-SAID-OF-IT
  printf '| English | French | where | not |\n|---|---|---|---|\n%s\n' "$1" >"$work/dictionary.md"
  local output
  if output=$("$check" "$root" "$work/dictionary.md") || [[ $output != *"$2"* ]]; then
    echo "'$1' is not noticed: $output"
    exit 1
  fi
}

check=$1 root=$2
noticed '| row | rang | `ui/messages.cpp` | |' 'ui/messages.cpp does not say "rang"'
noticed '| line | ligne | `ui/messages.cpp` | |' 'ui/messages.cpp does not say "line"'
noticed '| box | bloc | `docs/guide/` | |' 'docs/guide/fr.md does not say "bloc"'
noticed '| row | ligne | `docs/guide/` | house, case |' '"case" is said'
noticed '' 'has no rows'
