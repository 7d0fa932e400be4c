// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "game/window.hpp"

#include <cassert>

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

Answer Window::show_box(const std::string& text, Icon icon, Buttons buttons) {
  return desktop_.message_box(text, icon, buttons, globals.TitreFenetre);
}

void Window::show_message(Message message, Icon icon) {
  show_box(text_of(message), icon, Buttons::ok);
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

}  // namespace sdk
