// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/about_label.hpp"

#include <QMouseEvent>
#include <QPainter>

#include "ui/qt/contrast.hpp"

// Has to stand outside every namespace.
static void add_pictures_to_the_program() { Q_INIT_RESOURCE(pictures); }

namespace sdk {

AboutLabel::AboutLabel() { setTextFormat(Qt::PlainText); }

void AboutLabel::mousePressEvent(QMouseEvent* event) { event->accept(); }

void AboutLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) emit clicked();
}

LinkLabel::LinkLabel() {
  QPalette colours = palette();
  const QColor back = colours.color(QPalette::Window);
  // Some dark desktops leave links dark blue.
  colours.setColor(QPalette::Link,
                   legible(colours.color(QPalette::Link), back, small_text_contrast));
  setPalette(colours);
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
  picture_.render(&painter, rect());
}

}  // namespace sdk
