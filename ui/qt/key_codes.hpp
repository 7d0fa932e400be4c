// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// From Qt's key events to the key codes of the core.
#pragma once

class QKeyEvent;

namespace sdk {

struct KeyCode {
  int code;  ///< of sdk::key, or another that means nothing
  bool ctrl;
  bool operator==(const KeyCode&) const = default;
};

/// Digits are known by the character the key produces, so that they work on every keyboard; letters
/// by their key. Any other key without a meaning gives code 0.
KeyCode key_code(const QKeyEvent& event);

}  // namespace sdk
