// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/event_pump.hpp"

#include "tests/ui/qt/play.hpp"

namespace sdk::test {

class EventPumpTest : public QObject {
  Q_OBJECT

 private slots:
  void the_first_question_is_answered_yes() { QVERIFY(EventPump().poll()); }

  void quick_questions_get_a_yes_every_10_ms_at_most() {
    EventPump pump;
    QElapsedTimer timer;
    timer.start();
    for (int yes = 0; yes < 5;) yes += pump.poll();
    QVERIFY(timer.elapsed() >= 4 * 10);
  }

  void questions_that_come_slowly_are_all_answered_yes() {
    EventPump pump;
    for (int question = 0; question < 5; ++question) {
      QVERIFY(pump.poll());
      QTest::qSleep(11);
    }
  }
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::EventPumpTest)
#include "event_pump_test.moc"
