// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/control_names.hpp"

#include <algorithm>
#include <array>

namespace sdk {

namespace {

/// In the order of Control.
constexpr std::array<std::string_view, control_count> names{
    "Command1", "Command2", "Command3",  "Command4", "Command5", "Command6", "Command7",
    "Command8", "sauve",    "Bouton_GO", "aide",     "Check1",   "Check2",   "Check3",
    "Niveau",   "Label",    "Label3",    "MSF",      "MSR",      "rect",     "rect2"};

/// In the order of AboutControl.
constexpr std::array<std::string_view, 5> about_names{"Picture", "Label2", "Label1", "lblVersion",
                                                      "lblCopyright"};

}  // namespace

std::string_view control_name(Control control) {
  return names.at(static_cast<std::size_t>(control));
}

std::optional<Control> control_named(std::string_view name) {
  const auto found = std::ranges::find(names, name);
  if (found == names.end()) return std::nullopt;
  return static_cast<Control>(found - names.begin());
}

std::string_view about_control_name(AboutControl control) {
  return about_names.at(static_cast<std::size_t>(control));
}

bool is_button(Control control) { return control <= Control::aide; }

bool is_check_box(Control control) {
  return control >= Control::Check1 && control <= Control::Check3;
}

}  // namespace sdk
