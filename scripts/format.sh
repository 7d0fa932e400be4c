#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Refuses sources that are not laid out as .clang-format has it. Another version of clang-format lays
# out otherwise, so it is refused too.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
wanted=14

found=$(clang-format --version | sed -n 's/.*version \([0-9]*\).*/\1/p')
if [[ $found != "$wanted" ]]; then
  echo "clang-format: version $wanted (Debian 12) is needed, found is ${found:-none}" >&2
  exit 1
fi
find . -path './build*' -prune -o -name '*.[ch]pp' -print0 |
  xargs -0 clang-format --dry-run -Werror
