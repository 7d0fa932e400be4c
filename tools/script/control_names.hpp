// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The controls' names as a script writes and reads them.
#pragma once

#include <optional>
#include <string_view>

#include "screen/controls.hpp"
#include "ui/about.hpp"

namespace sdk {

std::string_view control_name(Control control);
/// The control of that name, if there is one.
std::optional<Control> control_named(std::string_view name);

std::string_view about_control_name(AboutControl control);

bool is_button(Control control);
bool is_check_box(Control control);

}  // namespace sdk
