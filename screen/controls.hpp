// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The main window's controls, as the code of every folder names them.
#pragma once

#include <optional>
#include <string_view>

#include "screen/keyed_rows.hpp"

namespace sdk {

enum class Control {
  Command1,   ///< new puzzle
  Command2,   ///< clear the grid
  Command3,   ///< quit
  Command4,   ///< print
  Command5,   ///< about box
  Command6,   ///< load a puzzle file
  Command7,   ///< show bad values
  Command8,   ///< hint
  sauve,      ///< save the puzzle
  Bouton_GO,  ///< solve
  aide,       ///< help
  Check1,     ///< verification on the fly
  Check2,     ///< show the candidates
  Check3,     ///< keep the initial grid intact
  Niveau,     ///< level list
  Label,      ///< count of filled cells
  Label3,     ///< title and credit
  MSF,        ///< the puzzle
  MSR,        ///< the candidates
  rect,       ///< frame around MSF
  rect2,      ///< frame around MSR
};

enum class ControlKind { button, check_box, list, label, grid, frame };

struct ControlRow {
  Control control;
  std::string_view name;  ///< what scripts and the widgets call it
  ControlKind kind;
};

inline constexpr ControlRow all_controls[] = {
    {Control::Command1, "Command1", ControlKind::button},
    {Control::Command2, "Command2", ControlKind::button},
    {Control::Command3, "Command3", ControlKind::button},
    {Control::Command4, "Command4", ControlKind::button},
    {Control::Command5, "Command5", ControlKind::button},
    {Control::Command6, "Command6", ControlKind::button},
    {Control::Command7, "Command7", ControlKind::button},
    {Control::Command8, "Command8", ControlKind::button},
    {Control::sauve, "sauve", ControlKind::button},
    {Control::Bouton_GO, "Bouton_GO", ControlKind::button},
    {Control::aide, "aide", ControlKind::button},
    {Control::Check1, "Check1", ControlKind::check_box},
    {Control::Check2, "Check2", ControlKind::check_box},
    {Control::Check3, "Check3", ControlKind::check_box},
    {Control::Niveau, "Niveau", ControlKind::list},
    {Control::Label, "Label", ControlKind::label},
    {Control::Label3, "Label3", ControlKind::label},
    {Control::MSF, "MSF", ControlKind::grid},
    {Control::MSR, "MSR", ControlKind::grid},
    {Control::rect, "rect", ControlKind::frame},
    {Control::rect2, "rect2", ControlKind::frame},
};
static_assert(has_row_for_each(all_controls, &ControlRow::control, Control::rect2));

constexpr std::string_view name_of(Control control) { return row_of(all_controls, control).name; }
constexpr bool is_button(Control control) {
  return row_of(all_controls, control).kind == ControlKind::button;
}
constexpr bool is_check_box(Control control) {
  return row_of(all_controls, control).kind == ControlKind::check_box;
}
/// The control of that name, if there is one.
constexpr std::optional<Control> control_named(std::string_view name) {
  for (const ControlRow& row : all_controls)
    if (row.name == name) return row.control;
  return std::nullopt;
}

}  // namespace sdk
