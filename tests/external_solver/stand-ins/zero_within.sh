#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# No solution: a 0 anywhere in the line says so.
echo 987654321135927468642138579426571983793482156518396742371865294269743815854219630
