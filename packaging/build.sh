#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the game and puts it in a Debian package; the last line names it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh play package
eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
export CXXFLAGS="$CXXFLAGS $CPPFLAGS" # CMake knows no flags for the preprocessor alone
# The date of all that is in the package, so that two builds of one version are the same.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog.in -S Timestamp)
export SOURCE_DATE_EPOCH

echo "Building the game for the package."
cmake --preset package >/dev/null
cmake --build --preset package
cpack --config build-package/CPackConfig.cmake -B build-package/packages >/dev/null
ls -t build-package/packages/*.deb | head -n 1
