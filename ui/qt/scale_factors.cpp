// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/scale_factors.hpp"

#include <QStringList>
#include <QtGlobal>

namespace sdk {

namespace {

/// A factor as Qt takes it, alone or after a screen's name and "=".
QString raised(const QString& factor) {
  const qsizetype number = factor.lastIndexOf('=') + 1;
  bool is_number = false;
  const bool small = factor.mid(number).toDouble(&is_number) < 1;
  return is_number && small ? factor.left(number) + '1' : factor;
}

void raise(const char* variable) {
  if (!qEnvironmentVariableIsSet(variable)) return;
  QStringList factors = qEnvironmentVariable(variable).split(';');
  for (QString& factor : factors) factor = raised(factor);
  qputenv(variable, factors.join(';').toLocal8Bit());
}

}  // namespace

void raise_scale_factors() {
  for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"}) raise(variable);
}

}  // namespace sdk
