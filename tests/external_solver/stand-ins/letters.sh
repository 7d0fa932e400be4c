#!/bin/sh
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# 81 characters, one of them no digit.
echo 98765432113592746864213857942657198379348215651839674237186529426974381585421963x
