// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/scale_factors.hpp"

#include <QtTest>

namespace sdk::test {

class ScaleFactorsTest : public QObject {
  Q_OBJECT

 private slots:
  void a_factor_below_1_becomes_1_data() {
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("used");
    QTest::newRow("half") << "0.5"
                          << "1";
    QTest::newRow("a little less") << "0.99"
                                   << "1";
    QTest::newRow("natural") << "1"
                             << "1";
    QTest::newRow("larger") << "1.25"
                            << "1.25";
    QTest::newRow("twice") << "2"
                           << "2";
    QTest::newRow("no number") << "small"
                               << "small";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("by screen") << "0.75;2"
                               << "1;2";
    QTest::newRow("by name") << "DP-1=0.8;HDMI=1.5"
                             << "DP-1=1;HDMI=1.5";
  }
  void a_factor_below_1_becomes_1() {
    QFETCH(QString, set);
    QFETCH(QString, used);
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"}) {
      qputenv(variable, set.toLocal8Bit());
      raise_scale_factors();
      QCOMPARE(qEnvironmentVariable(variable), used);
      qunsetenv(variable);
    }
  }

  void what_is_not_set_stays_so() {
    raise_scale_factors();
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCREEN_SCALE_FACTORS"));
  }
};

}  // namespace sdk::test

QTEST_GUILESS_MAIN(sdk::test::ScaleFactorsTest)
#include "scale_factors_test.moc"
