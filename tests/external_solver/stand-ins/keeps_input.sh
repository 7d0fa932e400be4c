#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# A good answer; leaves a copy of the grid that it was given in seen.000 beside it.
cp "$tmp/00000.000" "$tmp/seen.000"
echo 987654321135927468642138579426571983793482156518396742371865294269743815854219637
