// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The search written down as plainly as it is described: no counts, twenty comparisons a check. It
/// is what the fast search has to agree with, step by step.
#pragma once

#include "ui/main_window.hpp"

namespace sdk::test {

/// Does to `window` what Resoudre does, one call of let_events_run a step.
void plain_resoudre(MainWindow& window);

}  // namespace sdk::test
