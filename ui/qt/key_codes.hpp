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

/// A key that produces 1 to 9 in ASCII gives that digit, wherever it lies. Any other key of the
/// nine in the digit row gives the digit of its place, with and without Shift, so that keyboards
/// whose digits need Shift type without it; but neither with AltGr nor when the key is one of
/// sdk::key. Ctrl changes no digit. Letters are known by their key. Any other key gives code 0, so
/// no other character that stands for a digit gives one.
KeyCode key_code(const QKeyEvent& event);

}  // namespace sdk
