// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/about_printer.hpp"

#include <ostream>

#include "tools/script/text_format.hpp"

namespace sdk {

namespace {

void print(std::ostream& out, const About& about) {
  out << "about begin\n";
  for (const auto& [control, name] : about_controls)
    out << "about " << name << ' ' << in_quotes(about.text(control)) << '\n';
  out << "about end\n";
}

}  // namespace

void AboutPrinter::listen_to(MainWindow& window) {
  window_ = &window;
  window.set_listener(this);
}

void AboutPrinter::about_changed() {
  if (window_->about().shown())
    print(out_, window_->about());
  else
    out_ << "about closed\n";
}

}  // namespace sdk
