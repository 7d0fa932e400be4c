// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Filling the message table and putting its texts in the controls.

#include <array>
#include <utility>

#include "ui/main_window.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

struct ControlText {
  Control control;
  std::size_t message;
};

constexpr std::array<ControlText, 10> button_tooltips{{
    {Control::Command1, 0},
    {Control::Command2, 1},
    {Control::Command6, 2},
    {Control::sauve, 3},
    {Control::Bouton_GO, 4},
    {Control::Command4, 5},
    {Control::Command5, 6},
    {Control::aide, 7},
    {Control::Command3, 8},
    {Control::Command7, 9},
}};

constexpr std::array<ControlText, 3> check_texts{{
    {Control::Check3, 10},
    {Control::Check2, 22},
    {Control::Check1, 11},
}};

}  // namespace

void MainWindow::langage(const std::string& language) {
  globals.Messages = messages_in(language);
  for (const auto& [control, message] : button_tooltips)
    set_tooltip(control, globals.Messages[message]);
  for (const auto& [control, message] : check_texts) {
    set_caption(control, globals.Messages[message]);
    set_tooltip(control, globals.Messages[message]);
  }
  set_caption(Control::Label3, globals.Messages[15]);
  levels_.clear();
  chosen_level_.reset();
  for (std::int16_t level = 0; level <= 4; ++level)
    levels_.push_back({globals.Messages[static_cast<std::size_t>(16 + level)], level});
  about_.load();
  about_.set_author_caption(globals.Messages[31]);
  if (listener_) listener_->controls_changed();
}

void MainWindow::preview_key(int code) {
  if (code == key::escape) globals.ArretDemande = true;
  if (code != key::f1 && code != key::f2) return;
  globals.Langue = code == key::f1 ? "En" : "Fr";
  langage(globals.Langue);
}

}  // namespace sdk
