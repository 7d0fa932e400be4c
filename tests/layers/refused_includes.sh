#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# The layering check accepts what may be included, and names file and line of what may not.
#   refused_includes.sh PATH/TO/check_layers.sh
set -euo pipefail
check=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir -p "$tree"/{board,logic/techniques,screen,game,puzzles/stock,pas_a_pas,files/text,explanations,ui/qt} \
  "$tree"/tools/{command_line,script,walk,guide,zolv}
touch "$tree"/tools/zolv/beside.hpp
failures=0

expect() { # STATUS EXPECTED-OUTPUT FILE LINE: what the check says of FILE with LINE as its second
  printf '#pragma once\n%s\n' "$4" >"$tree/$3"
  local status=0 output
  output=$("$check" "$tree") || status=$?
  rm "$tree/$3"
  if ((($1 == 0) != (status == 0))) || [[ $output != *"$2"* ]]; then
    echo "$3 with '$4': status $status, output: $output"
    failures=$((failures + 1))
  fi
}

accepted() { expect 0 "" "$@"; }
refused() { expect 1 "$1:2: " "$@"; }

accepted board/a.cpp '#include <queue>'
accepted logic/techniques/a.cpp '#include "logic/position.hpp"'
accepted logic/a.cpp '#include "board/cells.hpp"'
accepted game/a.cpp '#include "screen/desktop.hpp"'
accepted puzzles/a.hpp '#include "board/square.hpp"'
accepted puzzles/a.cpp '#include "puzzles/stock/library_table.hpp"'
accepted pas_a_pas/a.cpp '#include "logic/run.hpp"'
accepted files/text/a.cpp '#include "files/text/exchange_text.hpp"'
accepted files/text/a.cpp '#include "board/cells.hpp"'
accepted files/a.cpp '#include "files/text/puzzle_file_text.hpp"'
accepted explanations/a.cpp '#include "logic/deduction.hpp"'
accepted ui/a.cpp '#include "files/puzzle_file.hpp"'
accepted ui/a.cpp '#include "files/text/puzzle_file_text.hpp"'
accepted ui/qt/a.cpp '#include "files/text/puzzle_file_text.hpp"'
accepted ui/qt/a.cpp '#include <QWidget>'
accepted ui/qt/a.cpp '#include "ui/main_window.hpp"'
accepted tools/script/a.cpp '#include "ui/main_window.hpp"'
accepted tools/script/a.cpp '#include "files/text/puzzle_file_text.hpp"'
accepted tools/guide/a.cpp '#include "files/text/puzzle_file_text.hpp"'
accepted tools/walk/a.cpp '#include "tools/command_line/command_line.hpp"'
accepted tools/guide/a.cpp '#include <QImage>'
accepted tools/guide/a.cpp '#include "ui/qt/main_frame.hpp"'
accepted tools/walk/a.cpp '#include "explanations/explanations.hpp"'
accepted tools/zolv/a.cpp '#include "beside.hpp"'

refused board/a.cpp '#include "screen/colours.hpp"'
refused logic/a.cpp '#include "game/globals.hpp"'
refused logic/techniques/a.cpp '#include "screen/display_grid.hpp"'
refused logic/a.hpp '#include "explanations/explanations.hpp"'
refused screen/a.cpp '#include "game/window.hpp"'
refused screen/a.cpp '#include "logic/position.hpp"'
refused game/a.cpp '#include "ui/main_window.hpp"'
refused game/a.cpp '#include "logic/run.hpp"'
refused game/a.hpp '#  include <puzzles/library.hpp>'
refused puzzles/a.cpp '#include "files/puzzle_file.hpp"'
refused puzzles/stock/a.cpp '#include "game/globals.hpp"'
refused pas_a_pas/a.cpp '#include "ui/layout.hpp"'
refused pas_a_pas/a.cpp '#include "explanations/explanations.hpp"'
refused files/a.cpp '#include "pas_a_pas/driver.hpp"'
refused files/text/a.cpp '#include "game/window.hpp"'
refused files/text/a.cpp '#include "screen/errors.hpp"'
refused files/text/a.cpp '#include "files/platform.hpp"'
refused files/text/a.cpp '#include "puzzles/stock/entry_text.hpp"'
refused game/a.cpp '#include "files/text/puzzle_file_text.hpp"'
refused puzzles/a.cpp '#include "files/text/puzzle_file_text.hpp"'
refused explanations/a.cpp '#include "game/globals.hpp"'
refused ui/a.cpp '#include "ui/qt/board.hpp"'
refused ui/a.cpp '#include "tests/support.hpp"'
refused ui/a.cpp '#include "layout.hpp"'
refused ui/a.cpp '#include <QWidget>'
refused ui/a.cpp '#include <QtGui/QPen>'
refused board/a.cpp '#include "qpoint.h"'
refused tools/script/a.cpp '#include <QCoreApplication>'
refused tools/script/a.cpp '#include "ui/qt/main_frame.hpp"'
refused tools/guide/a.cpp '#include "tools/script/script.hpp"'
refused tools/walk/a.cpp '#include "ui/main_window.hpp"'
refused tools/walk/a.cpp '#include "game/globals.hpp"'
refused tools/command_line/a.cpp '#include "board/cells.hpp"'
refused tools/zolv/a.cpp '#include "board/square.hpp"'

exit $((failures > 0))
