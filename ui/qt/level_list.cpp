// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/level_list.hpp"

#include <QStylePainter>

namespace sdk {

namespace {

/// What stands in the closed list: the chosen level or, in its colour, the placeholder.
QStyleOptionComboBox label_of(const QComboBox& list, QStyleOptionComboBox option) {
  if (list.currentIndex() >= 0) return option;
  option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
  option.currentText = list.placeholderText();
  return option;
}

}  // namespace

void LevelList::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QStyleOptionComboBox label = label_of(*this, option);
  option.editable = true;  // the look whose background is the Base
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, label);
}

}  // namespace sdk
