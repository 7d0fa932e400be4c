// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/key_codes.hpp"

#include <QKeyEvent>

#include "ui/main_window.hpp"

namespace sdk {

namespace {

/// The digit that the key produces; -1 for none.
int digit_of(const QKeyEvent& event) {
  const QString text = event.text();
  return text.size() == 1 ? text.front().digitValue() : -1;
}

int digit_code(const QKeyEvent& event, int digit) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return (keypad ? key::keypad_1 : key::digit_1) - 1 + digit;
}

int named_code(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Delete:
      return key::del;
    case Qt::Key_Backspace:
      return key::backspace;
    case Qt::Key_Escape:
      return key::escape;
    case Qt::Key_F1:
      return key::f1;
    case Qt::Key_F2:
      return key::f2;
    default:
      return 0;
  }
}

/// Qt's codes of the letters are the core's; the signs' codes would be taken for other keys.
bool is_letter(int qt_key) { return qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z; }

}  // namespace

KeyCode key_code(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) return {key::c, true};
  if (event.matches(QKeySequence::SelectAll)) return {key::a, true};
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  if (const int digit = digit_of(event); digit >= 0) return {digit_code(event, digit), ctrl};
  if (is_letter(event.key())) return {event.key(), ctrl};
  return {named_code(event.key()), ctrl};
}

}  // namespace sdk
