#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Prints how long the product's functions are, and refuses one of more than 30 lines and a source
# or header of more than 250. What serves only tests and benchmarks is not the product.
#   scripts/function_lengths.sh [ROOT]    names FILE:LINE NAME LENGTH of each; exit status 1 when
#                                         there is any
# A function's length is that of its whole definition, from the line of its name to that of its
# closing brace; what is written inside it, as a lambda is, belongs to it.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"

longest_function=30
longest_file=250

# Files that are a table of data with some code around it may be of any length; their functions not.
tables=(puzzles/stock/library_table.cpp explanations/sentences.hpp)

product_files() {
  find . \( -path './build*' -o -path ./tests -o -path ./bench \) -prune -o \
    -name '*.[ch]pp' -printf '%P\n' | sort
}

# FILE:LINE NAME LENGTH of every function.
functions() {
  product_files |
    ctags -L - -x --language-force=C++ --kinds-C++=f --_xformat='%F %n %{end} %N' |
    sort -k 1,1 -k 2,2n -k 3,3nr |
    awk '
      $3 !~ /^[0-9]+$/ { print "No end of this function was found: " $0 >"/dev/stderr"; exit 1 }
      $4 ~ /^__anon/ && $1 == file && $2 <= end { next } # a lambda inside a function
      { file = $1; end = $3; print file ":" $2, $4 $5, end - $2 + 1 }'
}

print_figures() {
  sort -n -k 3 | awk '
    { length_of[NR] = $3 }
    END {
      printf "%d functions: median %d lines, 90th percentile %d, longest %d.\n", NR,
        length_of[int((NR + 1) / 2)], length_of[int((NR * 9 + 9) / 10)], length_of[NR]
    }'
}

is_table() {
  local table
  for table in "${tables[@]}"; do
    if [[ $1 == $table ]]; then return 0; fi
  done
  return 1
}

long_files() {
  local file lines
  while read -r file; do
    lines=$(wc -l <"$file")
    if ((lines > longest_file)) && ! is_table "$file"; then
      echo "$file:$((longest_file + 1)) the file $lines"
    fi
  done < <(product_files)
}

echo "Checking the lengths of functions and files."
all=$(functions)
if [[ -z $all ]]; then
  echo "There is no function in $PWD." >&2
  exit 1
fi
print_figures <<<"$all"
refused=$(awk -v most="$longest_function" '$3 > most' <<<"$all" && long_files)
if [[ -n $refused ]]; then
  echo "Longer than $longest_function lines, or $longest_file for a file:"
  echo "$refused"
  exit 1
fi
