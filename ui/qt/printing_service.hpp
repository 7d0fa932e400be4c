// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The system's default printer.
#pragma once

#include "screen/desktop.hpp"

namespace sdk {

/// The printable area of its portrait page. Throws RuntimeError when there is no printer.
PageSize default_printer_page();

/// Prints one copy of one portrait page. Throws RuntimeError when there is no printer or it
/// refuses.
void print_on_default_printer(const Page& page);

}  // namespace sdk
