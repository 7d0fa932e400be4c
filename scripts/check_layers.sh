#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Refuses every include that goes against the call direction, and Qt outside ui/qt/ and tools/guide/.
#   scripts/check_layers.sh [ROOT]    names FILE:LINE of each; exit status 1 when there is any
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"

# folder: what its sources may include. The deepest folder that holds a file counts.
layers='
board: board
logic: logic board
screen: screen board
game: game screen board
puzzles: puzzles puzzles/stock game screen board
puzzles/stock: puzzles/stock board
pas_a_pas: pas_a_pas logic game screen board
files: files files/text game screen board
files/text: files/text board
explanations: explanations logic board
ui: ui puzzles puzzles/stock pas_a_pas files files/text game screen explanations logic board
ui/qt: ui/qt ui puzzles puzzles/stock pas_a_pas files files/text game screen explanations logic board
tools: tools tools/command_line ui puzzles puzzles/stock pas_a_pas files files/text game screen explanations logic board
tools/command_line: tools/command_line
tools/guide: tools/guide tools/command_line ui/qt ui puzzles puzzles/stock pas_a_pas files files/text game screen explanations logic board
tools/walk: tools/walk tools/command_line puzzles/stock files/text explanations logic board
tools/zolv: tools/zolv
'

echo "Checking that no include goes upward."
find board logic screen game puzzles pas_a_pas files explanations ui tools -name '*.[ch]pp' -print0 | sort -z |
  LAYERS=$layers xargs -0 awk '
    BEGIN {
      count = split(ENVIRON["LAYERS"], lines, "\n")
      for (i = 1; i <= count; ++i)
        if (split(lines[i], parts, ": *") == 2) allowed[parts[1]] = " " parts[2] " "
    }
    function folder_of(path) {
      while (sub("/[^/]*$", "", path)) if (path in allowed) return path
      return ""
    }
    function is_beside(name, own_file, line) {
      sub("[^/]*$", name, own_file)
      return name !~ "/" && (getline line < own_file) >= 0
    }
    function refuse(why) {
      print FILENAME ":" FNR ": " why ": " $0
      refused = 1
    }
    FNR == 1 { own = folder_of(FILENAME) }
    /^[ \t]*#[ \t]*include/ {
      quoted = /"/
      path = $0
      gsub(/^[^<"]*[<"]|[>"].*$/, "", path)
      target = folder_of(path)
      if (path ~ /^(Q|qt|q[a-z0-9]+\.h$)/) {
        if (own != "ui/qt" && own != "tools/guide") refuse("Qt is for ui/qt and tools/guide alone")
      } else if (target == "" ? quoted && !is_beside(path, FILENAME) \
                              : index(allowed[own], " " target " ") == 0) {
        refuse(own "/ may include" allowed[own] "only")
      }
    }
    END { exit refused }' || exit 1
