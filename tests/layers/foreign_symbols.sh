#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Names every function and object that a program shares with libraries that it is not made of;
# exit status 1 when there is any.
#   foreign_symbols.sh PROGRAM LIBRARY...
set -euo pipefail
program=$1
shift

# What a library defines for others (T, D, B, R), templates and inline functions apart: those are
# made anew wherever they are used.
defined_in() { nm --defined-only --extern-only "$@" 2>/dev/null | sed -n 's/.* [TDBR] //p' | sort -u; }

own=$(defined_in "$program")
libraries=$(defined_in "$@")
if [[ -z $own || -z $libraries ]]; then
  echo "foreign_symbols.sh: no symbols to compare in $program or $*" >&2
  exit 2
fi
shared=$(comm -12 <(echo "$own") <(echo "$libraries"))
if [[ -n $shared ]]; then
  echo "$program has symbols that are not its own:"
  c++filt <<<"$shared"
  exit 1
fi
