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
  Message message;
};

constexpr std::array<ControlText, 10> button_tooltips{{
    {Control::Command1, Message::new_puzzle},
    {Control::Command2, Message::clear_grid},
    {Control::Command6, Message::load_puzzle},
    {Control::sauve, Message::save_puzzle},
    {Control::Bouton_GO, Message::solve_puzzle},
    {Control::Command4, Message::print_puzzle},
    {Control::Command5, Message::about},
    {Control::aide, Message::help},
    {Control::Command3, Message::quit},
    {Control::Command7, Message::show_bad_values},
}};

constexpr std::array<ControlText, 3> check_texts{{
    {Control::Check3, Message::keep_initial_grid},
    {Control::Check2, Message::show_candidates},
    {Control::Check1, Message::verify_on_the_fly},
}};

}  // namespace

void MainWindow::langage(const std::string& language) {
  globals.Messages = messages_in(language);
  for (const auto& [control, message] : button_tooltips) set_tooltip(control, text_of(message));
  for (const auto& [control, message] : check_texts) {
    set_caption(control, text_of(message));
    set_tooltip(control, text_of(message));
  }
  set_caption(Control::Label3, text_of(Message::credit));
  levels_.clear();
  chosen_level_.reset();
  for (std::int16_t level = 0; level <= 4; ++level) levels_.push_back({level_name(level), level});
  about_.load();
  about_.set_author_caption(text_of(Message::author));
  if (listener_) listener_->controls_changed();
}

void MainWindow::preview_key(int code) {
  if (code == key::escape) globals.ArretDemande = true;
  if (code != key::f1 && code != key::f2) return;
  globals.Langue = code == key::f1 ? "En" : "Fr";
  langage(globals.Langue);
}

}  // namespace sdk
