#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Builds everything so that it counts which lines run, runs the tests quick and window, and tells
# what they ran of the product:
#   build-coverage/page/index.html  a page, with every source
#   build-coverage/unrun.txt        FILE and the numbers of its lines that no test ran
# and a table by folder. A process that ends without leaving main(), as by a signal, counts nothing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=build-coverage
folders='board|logic|explanations|screen|game|files|puzzles|pas_a_pas|ui|tools'

scripts/setup.sh play test coverage
echo "Building everything with counters."
cmake --preset coverage >/dev/null
cmake --build --preset coverage
find "$build" -name '*.gcda' -delete # making the guides has run lines too

echo "Running the tests quick and window."
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure --no-tests=error -j "$(nproc)" -L 'quick|window'

echo "Counting."
mkdir -p "$build/page"
gcovr --root . --filter "($folders)/" --gcov-ignore-parse-errors -j "$(nproc)" \
  --html-details "$build/page/index.html" --csv "$build/lines.csv" --json "$build/lines.json" \
  "$build" >/dev/null

# "12-14,20" of each file, from the counts of its lines.
python3 - "$build/lines.json" >"$build/unrun.txt" <<'END'
import itertools, json, sys

for file in json.load(open(sys.argv[1]))["files"]:
    lines = [line["line_number"] for line in file["lines"]
             if not line["count"] and not line["gcovr/noncode"]]
    runs = [list(run) for _, run in itertools.groupby(enumerate(lines), lambda l: l[1] - l[0])]
    if lines:
        print(file["file"], ",".join(f"{run[0][1]}-{run[-1][1]}" if run[1:] else str(run[0][1])
                                     for run in runs))
END

awk -F, '
  NR > 1 {
    folder = $1 ~ /^ui\/qt\// ? "ui/qt" : $1
    if (folder != "ui/qt") sub(/\/.*/, "", folder)
    lines[folder] += $2; run[folder] += $3; lines["together"] += $2; run["together"] += $3
  }
  END {
    printf "%-14s %7s %7s %6s\n", "folder", "lines", "run", "%"
    for (folder in lines)
      printf "%-14s %7d %7d %6.1f\n", folder, lines[folder], run[folder],
             100 * run[folder] / lines[folder] | "sort"
  }' "$build/lines.csv"
echo "The page is $build/page/index.html, the lines that no test ran are in $build/unrun.txt."
