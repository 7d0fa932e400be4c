#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Builds the fuzz targets and lets each run over that many inputs.
#   scripts/fuzz.sh [RUNS]
# An input that fails is kept in build-fuzz/; give its name to build-fuzz/bin/fuzz_TARGET to repeat
# it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
runs=${1:-100000}

scripts/setup.sh play test fuzz
echo "Building the fuzz targets."
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
for target in open answer; do
  echo "Fuzzing: $target, $runs inputs."
  mkdir -p "build-fuzz/corpus/$target"
  # Whole paths, since the game changes the current folder.
  log=build-fuzz/$target.log
  if ! "build-fuzz/bin/fuzz_$target" -runs="$runs" -timeout=10 -max_len=1000 -verbosity=0 \
    -print_funcs=0 -print_final_stats=1 -artifact_prefix="$PWD/build-fuzz/" \
    "$PWD/build-fuzz/corpus/$target" "$PWD/tests/fuzz/corpus/$target" >"$log" 2>&1; then
    tail -n 100 "$log"
    exit 1
  fi
  grep stat::number_of "$log"
done
