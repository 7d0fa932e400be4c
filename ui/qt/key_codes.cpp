// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/key_codes.hpp"

#include <QKeyEvent>

#include "ui/main_window.hpp"

namespace sdk {

namespace {

bool is_digit(int code) { return code >= key::digit_1 && code <= key::digit_9; }

/// The digit as a character, which is a code of the core too; 0 when the key produces none. With
/// Ctrl some digits come as control characters, and only Qt's code of the key tells them.
int digit_produced_by(const QKeyEvent& event) {
  const QString text = event.text();
  const int character = text.size() == 1 ? text.front().unicode() : 0;
  if (is_digit(character)) return character;
  return is_digit(event.key()) ? event.key() : 0;
}

/// AltGr, as X11 and Wayland set up every keyboard that has it; Qt's modifiers lack it.
bool alt_gr_is_down(const QKeyEvent& event) {
  constexpr quint32 mod5 = 0x80;
  return event.nativeModifiers() & mod5;
}

/// The digit that is printed on the key, or on that key of other countries' keyboards; 0 when the
/// key lies elsewhere. What AltGr chooses is a sign of its own, not the key's digit.
int digit_at_place_of(const QKeyEvent& event) {
  constexpr quint32 first_place = 10;  // from left to right, on X11 and Wayland
  const quint32 place = event.nativeScanCode();
  const bool in_row = place >= first_place && place < first_place + 9;
  return in_row && !alt_gr_is_down(event) ? key::digit_1 + int(place - first_place) : 0;
}

/// As the key that lies on the keypad, when it does.
int on_its_block(const QKeyEvent& event, int digit) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return keypad ? digit - key::digit_1 + key::keypad_1 : digit;
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
  if (const int digit = digit_produced_by(event)) return {on_its_block(event, digit), ctrl};
  if (const int named = named_code(event.key())) return {named, ctrl};
  if (const int digit = digit_at_place_of(event)) return {digit, ctrl};
  return {is_letter(event.key()) ? event.key() : 0, ctrl};
}

}  // namespace sdk
