#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# A good answer, then ended by a signal.
echo 987654321135927468642138579426571983793482156518396742371865294269743815854219637
kill -SEGV $$
