// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// render_icon DRAWING.svg SIZE PICTURE.png: the drawing as a square picture of SIZE pixels.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  QSvgRenderer drawing((QString(argv[1])));
  const int size = QString(argv[2]).toInt();
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  return drawing.isValid() && picture.save(argv[3], "PNG") ? 0 : 1;
}
