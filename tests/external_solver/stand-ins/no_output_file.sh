#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Takes away the file that its output goes to.
rm "$tmp/out.000"
