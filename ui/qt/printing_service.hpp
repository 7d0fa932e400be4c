// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The system's default printer, and the page of a PDF file for where there is none.
#pragma once

#include <string>

#include "screen/desktop.hpp"

namespace sdk {

bool has_default_printer();

/// The printable area of its portrait page. Throws RuntimeError when there is no printer.
PageSize default_printer_page();

/// Prints one copy of one portrait page. Throws RuntimeError when there is no printer or it
/// refuses.
void print_on_default_printer(const Page& page);

/// The printable area of an A4 page in portrait.
PageSize pdf_page();

/// The bytes of a PDF file with that one page. Throws RuntimeError when it cannot be painted.
std::string pdf_of(const Page& page);

}  // namespace sdk
