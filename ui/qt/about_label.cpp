// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/about_label.hpp"

#include <QMouseEvent>
#include <QPainter>

// Has to stand outside every namespace.
static void add_pictures_to_the_program() { Q_INIT_RESOURCE(pictures); }

namespace sdk {

AboutLabel::AboutLabel() { setTextFormat(Qt::PlainText); }

void AboutLabel::mousePressEvent(QMouseEvent* event) { event->accept(); }

void AboutLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) emit clicked();
}

LinkLabel::LinkLabel() {
  setForegroundRole(QPalette::Link);
  setCursor(Qt::PointingHandCursor);
}

PictureLabel::PictureLabel() {
  add_pictures_to_the_program();
  picture_.load(QString(":/pictures/woman_with_hat.svg"));
  setFixedSize(picture_.defaultSize());
}

void PictureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  picture_.render(&painter, rect());
}

}  // namespace sdk
