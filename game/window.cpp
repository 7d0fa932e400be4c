// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "game/window.hpp"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <utility>

namespace sdk {

namespace {
Window* the_window = nullptr;
}

Window::Window(Desktop& desktop) : desktop_(desktop) { the_window = this; }

Window::~Window() { the_window = nullptr; }

Window& sudoku() {
  assert(the_window);
  return *the_window;
}

void Window::show_count(int filled) {
  set_caption(Control::Label, " " + std::to_string(filled) + " indices");
}

void Window::show_message(int index, Icon icon) {
  desktop_.message_box(globals.Messages[static_cast<std::size_t>(index)], icon, Buttons::ok,
                       globals.TitreFenetre);
}

std::string_view character(std::string_view text, int k) {
  const auto position = static_cast<std::size_t>(k - 1);
  return position < text.size() ? text.substr(position, 1) : std::string_view();
}

std::string from_code_page(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      result += c;
    } else {
      result += static_cast<char>(0xC0 | (byte >> 6));
      result += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return result;
}

std::int16_t numeric_prefix(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  std::int16_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

}  // namespace sdk
