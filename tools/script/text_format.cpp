// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/text_format.hpp"

#include <charconv>
#include <cstdio>

namespace sdk {

namespace {

std::string escaped(char c) {
  switch (c) {
    case '\t':
      return "\\t";
    case '\r':
      return "\\r";
    case '\n':
      return "\\n";
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    default:
      return std::string(1, c);
  }
}

}  // namespace

std::string in_quotes(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) result += escaped(c);
  return result + '"';
}

std::string colour_text(Colour c) {
  char text[7];
  std::snprintf(text, sizeof text, "%02X%02X%02X", colour::red_of(c), colour::green_of(c),
                colour::blue_of(c));
  return text;
}

std::string decimal(float value) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed).ptr;
  return std::string(text, end);
}

std::string line_text(const LineDrawing& line) {
  std::string text = "line " + std::to_string(line.width);
  for (const float value : {line.x1, line.y1, line.x2, line.y2}) text += ' ' + decimal(value);
  return text;
}

}  // namespace sdk
