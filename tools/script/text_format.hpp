// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How values are written in the output of a script.
#pragma once

#include <string>
#include <string_view>

#include "screen/colours.hpp"
#include "screen/drawing.hpp"

namespace sdk {

/// `text` between double quotes, with \t \r \n \" \\ for what would break the line or the quotes.
std::string in_quotes(std::string_view text);

/// Six upper-case hexadecimal digits RRGGBB.
std::string colour_text(Colour colour);

/// The shortest decimal that reads back as `value`, without exponent and without trailing zeros.
std::string decimal(float value);

/// "line WIDTH X1 Y1 X2 Y2".
std::string line_text(const LineDrawing& line);

}  // namespace sdk
