// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/icons.hpp"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Has to stand outside every namespace.
static void add_icons_to_the_program() { Q_INIT_RESOURCE(icons); }

namespace sdk {

namespace {

QString file_of(const char* name) {
  add_icons_to_the_program();
  return QString(":/icons/%1.svg").arg(name);
}

QPixmap drawing(const QString& file, const QSize& size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(file).render(&painter);
  return pixmap;
}

/// Uses the drawing as a stencil, so that one set of icons serves light and dark themes.
class StencilIcon : public QIconEngine {
 public:
  explicit StencilIcon(const QString& file) : file_(file) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->drawPixmap(rect, drawn(rect.size() * painter->device()->devicePixelRatio(), mode));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    return drawn(size, mode);
  }

  QIconEngine* clone() const override { return new StencilIcon(*this); }

 private:
  QPixmap drawn(const QSize& size, QIcon::Mode mode) const {
    QPixmap pixmap = drawing(file_, size);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour(mode));
    return pixmap;
  }

  static QColor colour(QIcon::Mode mode) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(group, QPalette::ButtonText);
  }

  QString file_;
};

}  // namespace

QIcon button_icon(const char* name) { return QIcon(new StencilIcon(file_of(name))); }

IconButton::IconButton(const char* name, const char* icon, int icon_side, int side, QWidget* parent)
    : QToolButton(parent) {
  setObjectName(name);
  setIcon(button_icon(icon));
  setIconSize({icon_side, icon_side});
  setFixedSize(side, side);
  setAutoRaise(true);
}

QPixmap box_picture(const char* name, int side, double pixel_ratio) {
  QPixmap picture = drawing(file_of(name), QSize(side, side) * pixel_ratio);
  picture.setDevicePixelRatio(pixel_ratio);
  return picture;
}

QIcon game_icon() {
  QIcon icon;
  for (const int side : {16, 32, 64}) icon.addPixmap(box_picture("game", side, 1));
  return icon;
}

}  // namespace sdk
