// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The keys that type a digit, on the keyboards of several countries.

#include "tests/ui/qt/play.hpp"
#include "ui/qt/key_codes.hpp"

namespace sdk::test {

namespace {

constexpr quint32 first_of_digit_row = 10;  // as X11 and Wayland number the keys
constexpr quint32 left_of_digit_row = 49;
constexpr quint32 first_of_top_letters = 24;
constexpr quint32 alt_gr = 0x80;

/// A key where the keyboard has it, and what Qt says of it.
struct Key {
  quint32 place;
  int code;
  QString text;
  Qt::KeyboardModifiers modifiers;
  quint32 native_modifiers = 0;
};

QKeyEvent press_of(const Key& key) {
  return {QEvent::KeyPress, key.code, key.modifiers, key.place, 0, key.native_modifiers, key.text};
}

/// Qt's code of a key is its capital letter or its sign.
Key producing(QChar character, quint32 place, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return {place, character.toUpper().unicode(), QString(character), modifiers};
}

int code_of(const Key& key) { return key_code(press_of(key)).code; }

}  // namespace

class DigitKeysTest : public QObject {
  Q_OBJECT

 private slots:
  void the_digit_row_types_by_place_data() {
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("shifted");
    QTest::newRow("fr") << "&é\"'(-è_ç"
                        << "123456789";
    QTest::newRow("fr bepo") << "\"«»()@+-/"
                             << "123456789";
    QTest::newRow("be") << "&é\"'(§è!ç"
                        << "123456789";
    QTest::newRow("ch fr") << "123456789"
                           << "+\"*ç%&/()";
    QTest::newRow("us") << "123456789"
                        << "!@#$%^&*(";
    QTest::newRow("de") << "123456789"
                        << "!\"§$%&/()";
    QTest::newRow("cz") << "+ěščřžýáí"
                        << "123456789";
    QTest::newRow("Arabic") << "١٢٣٤٥٦٧٨٩"
                            << "!@#$%^&*)";
  }
  void the_digit_row_types_by_place() {
    QFETCH(QString, row);
    QFETCH(QString, shifted);
    for (int i = 0; i < 9; ++i) {
      const quint32 place = first_of_digit_row + quint32(i);
      QCOMPARE(code_of(producing(row[i], place)), key::digit_1 + i);
      QCOMPARE(code_of(producing(shifted[i], place, Qt::ShiftModifier)), key::digit_1 + i);
    }
  }

  void a_digit_is_typed_wherever_its_key_lies() {
    const QString programmers_row = "753190246";
    for (int i = 0; i < 9; ++i) {
      if (programmers_row[i] == '0') continue;
      QCOMPARE(code_of(producing(programmers_row[i], first_of_digit_row + quint32(i))),
               int(programmers_row[i].unicode()));
    }
    QCOMPARE(code_of(producing('7', first_of_top_letters)), int('7'));
  }

  void no_other_character_types_a_digit_data() {
    QTest::addColumn<QString>("character");
    for (const char* character : {"²", "³", "¹", "２", "٢", "२", "②", "½", "0", "o"})
      QTest::newRow(character) << character;
  }
  void no_other_character_types_a_digit() {
    QFETCH(QString, character);
    Play play;
    play.draw(std::string(81, '.'));
    press(play, producing(character[0], left_of_digit_row));
    press(play, producing(character[0], 0));
    QCOMPARE(play.text(1, 1), " ");
  }

  void the_keys_beside_the_nine_type_nothing() {
    for (const quint32 place : {left_of_digit_row, 9u, 19u, 20u})
      QCOMPARE(code_of(producing('(', place)), 0);
  }

  void the_keypad_types_its_digits() {
    for (int digit = 1; digit <= 9; ++digit)
      QCOMPARE(code_of(producing(QChar('0' + digit), 79, Qt::KeypadModifier)),
               key::keypad_1 - 1 + digit);
  }

  // Ctrl turns the characters of most digits into control characters.
  void ctrl_and_a_digit_types_it() {
    const char* characters[] = {"1", "", "\x1b", "\x1c", "\x1d", "\x1e", "\x1f", "\x7f", "9"};
    for (int i = 0; i < 9; ++i) {
      const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
      const Key top{first_of_digit_row + quint32(i), Qt::Key_1 + i, characters[i], ctrl};
      const Key keypad{87, Qt::Key_1 + i, characters[i], ctrl | Qt::KeypadModifier};
      QCOMPARE(key_code(press_of(top)), (KeyCode{key::digit_1 + i, true}));
      QCOMPARE(key_code(press_of(keypad)), (KeyCode{key::keypad_1 + i, true}));
    }
  }

  void ctrl_and_a_french_digit_key_types_it() {
    QCOMPARE(key_code(press_of(producing('"', 12, Qt::ControlModifier))), (KeyCode{'3', true}));
  }

  void alt_gr_types_the_digits_that_it_produces_and_no_place() {
    QCOMPARE(code_of({11, Qt::Key_AsciiTilde, "~", {}, alt_gr}), 0);
    QCOMPARE(code_of({11, 0xB2, "²", {}, alt_gr}), 0);
    QCOMPARE(code_of({11, Qt::Key_AsciiTilde, "", Qt::ControlModifier, alt_gr}), 0);
    QCOMPARE(code_of({44, Qt::Key_4, "4", {}, alt_gr}), int('4'));
  }

  void the_other_modifiers_of_the_system_change_no_place() {
    for (const quint32 modifiers : {0x01u, 0x02u, 0x10u, 0x7fu})
      QCOMPARE(code_of({11, 0xE9, QString(QChar(0xE9)), {}, modifiers}), int('2'));
  }

  void keys_with_a_name_keep_their_meaning_in_the_digit_row() {
    QCOMPARE(code_of({10, Qt::Key_Backspace, "\b", {}}), key::backspace);
    QCOMPARE(code_of({10, Qt::Key_Delete, "\x7f", {}}), key::del);
    QCOMPARE(code_of({10, Qt::Key_Escape, "\x1b", {}}), key::escape);
    QCOMPARE(key_code(press_of({11, Qt::Key_C, "\x03", Qt::ControlModifier})),
             (KeyCode{key::c, true}));
    QCOMPARE(key_code(press_of({11, Qt::Key_A, "\x01", Qt::ControlModifier})),
             (KeyCode{key::a, true}));
  }

  void a_french_keyboard_plays() {
    Play play;
    play.draw(std::string(81, '.'));
    press(play, producing('&', 10));
    QCOMPARE(play.text(1, 1), "1");
    press(play, producing(QChar(0xE7), 18));
    QCOMPARE(play.text(1, 1), "9");
    press(play, {12, Qt::Key_3, "\x1b", Qt::ControlModifier});
    QCOMPARE(play.text(1, 1), "3");
    press(play, producing(QChar(0xE0), 19));
    QCOMPARE(play.text(1, 1), "3");
  }

 private:
  void press(Play& play, const Key& key) {
    QKeyEvent event = press_of(key);
    QApplication::sendEvent(&play.find("MSF"), &event);
    play.settle();
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::DigitKeysTest)
#include "digit_keys_test.moc"
