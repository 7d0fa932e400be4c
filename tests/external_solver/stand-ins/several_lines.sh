#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# A good answer; what follows its line, a 0 and letters among it, does not count.
echo 987654321135927468642138579426571983793482156518396742371865294269743815854219637
echo 0
echo solved in no time
