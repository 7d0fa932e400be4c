// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_menu_item.hpp"

#include <QKeyEvent>
#include <QStyleOptionMenuItem>
#include <QStylePainter>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk {

namespace {

constexpr int square_side = 36, square_font_size = 14;

QStyleOptionMenuItem look_of(const CellMenuItem& item) {
  QStyleOptionMenuItem look;
  look.initFrom(&item);
  look.font = item.font();
  look.state.setFlag(QStyle::State_Selected, item.hasFocus());
  return look;
}

QPalette::ColorRole text_role(const CellMenuItem& item) {
  return item.hasFocus() ? QPalette::HighlightedText : QPalette::Text;
}

}  // namespace

CellMenuItem::CellMenuItem(Shape shape, const QString& keys, QWidget* parent)
    : QAbstractButton(parent), shape_(shape), keys_(keys) {
  setAccessibleDescription(keys);
  if (shape == Shape::square) setFont(font_of_size(square_font_size));
}

void CellMenuItem::set_name(const QString& name) {
  setText(name);
  set_accessible_name(*this, name);
}

QSize CellMenuItem::sizeHint() const {
  if (shape_ == Shape::square) return {square_side, square_side};
  QStyleOptionMenuItem look = look_of(*this);
  look.text = text();
  const QSize text_size = fontMetrics().size(Qt::TextSingleLine, look.text + '\t' + keys_);
  return style()->sizeFromContents(QStyle::CT_MenuItem, &look, text_size, this);
}

void CellMenuItem::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionMenuItem look = look_of(*this);
  look.reservedShortcutWidth = fontMetrics().horizontalAdvance(keys_);
  if (shape_ == Shape::row) look.text = text() + '\t' + keys_;
  painter.drawControl(QStyle::CE_MenuItem, look);
  if (shape_ == Shape::square)
    painter.drawItemText(rect(), Qt::AlignCenter, palette(), isEnabled(), text(), text_role(*this));
}

void CellMenuItem::enterEvent(QEnterEvent*) { setFocus(Qt::MouseFocusReason); }

void CellMenuItem::keyPressEvent(QKeyEvent* event) { event->ignore(); }

void CellMenuItem::keyReleaseEvent(QKeyEvent* event) { event->ignore(); }

}  // namespace sdk
