// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One thing to choose in the menu of the cell.
#pragma once

#include <QAbstractButton>

namespace sdk {

/// Looks like an item of the desktop's menus, and is highlighted while it has the focus, which the
/// pointer gives it too. Its keys are its menu's.
class CellMenuItem : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Shape { square, row };

  /// A square shows its name in the middle; a row shows `keys` after it, which do the same.
  CellMenuItem(Shape shape, const QString& keys, QWidget* parent);

  void set_name(const QString& name);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  Shape shape_;
  QString keys_;
};

}  // namespace sdk
