#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# The check of lengths accepts what is short enough, and names file, line, name and length of what
# is not.
#   refused_lengths.sh PATH/TO/function_lengths.sh
set -euo pipefail
check=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir -p "$tree"/{board,puzzles/stock,explanations,ui/qt,tests,bench,build/generated}
failures=0

lines() { # COUNT TEXT
  for ((i = 0; i < $1; ++i)); do echo "$2"; done
}

function_of() { # LENGTH [HEAD]
  echo "${2:-void f()} {"
  lines $(($1 - 2)) '  g();'
  echo '}'
}

file_of() { # LENGTH
  function_of 30
  lines $(($1 - 30)) '// A comment.'
}

expect() { # STATUS EXPECTED-OUTPUT FILE: what the check says of the tree with its input as FILE
  printf 'int main() {}\n' >"$tree/board/main.cpp"
  cat >"$tree/$3"
  local status=0 output
  output=$("$check" "$tree" 2>&1) || status=$?
  rm "$tree/$3"
  if (($1 != status)) || [[ $output != *"$2"* ]]; then
    echo "$3, expected status $1 and '$2': status $status, output: $output"
    failures=$((failures + 1))
  fi
}

accepted() { expect 0 "" "$@"; }
refused() { expect 1 "$@"; }

accepted board/a.cpp < <(function_of 30)
accepted board/a.hpp < <(function_of 30 'inline void f()')
accepted ui/qt/a.cpp < <(function_of 20 && function_of 20 'void g()')
accepted board/a.cpp < <(file_of 250)
accepted puzzles/stock/library_table.cpp < <(file_of 251)
accepted explanations/sentences.hpp < <(file_of 251)
accepted tests/a.cpp < <(function_of 31)
accepted bench/a.cpp < <(function_of 31)
accepted build/generated/a.cpp < <(function_of 31)
expect 0 '4 functions: median 2 lines, 90th percentile 9, longest 9.' board/a.cpp < <(
  function_of 2 && function_of 2 'void g()' && function_of 9 'void h()')

refused 'board/a.cpp:1 f 31' board/a.cpp < <(function_of 31)
refused 'ui/qt/a.hpp:2 f 31' ui/qt/a.hpp < <(echo && function_of 31 'inline void f()')
refused 'board/a.cpp:1 f 31' board/a.cpp < <(function_of 31 'template <class T> T f(T t) requires C<T>')
refused 'board/a.cpp:2 operator== 31' board/a.cpp < <(
  function_of 31 $'struct S {\nbool operator==(S other) const' && echo '};')
refused 'board/a.cpp:1 f 32' board/a.cpp < <(
  echo 'void f() {' && function_of 30 '  const auto lambda = []' && echo '}')
refused 'explanations/sentences.hpp:1 f 31' explanations/sentences.hpp < <(function_of 31)
refused 'board/a.cpp:251 the file 251' board/a.cpp < <(file_of 251)
refused 'board/a.hpp:251 the file 251' board/a.hpp < <(file_of 251)

rm -r "${tree:?}"/*
if output=$("$check" "$tree" 2>&1) || [[ $output != *'There is no function'* ]]; then
  echo "An empty tree: $output"
  failures=$((failures + 1))
fi

exit $((failures > 0))
