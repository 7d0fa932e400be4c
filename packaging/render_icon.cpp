// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// render_icon: a drawing as a square picture.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <iostream>
#include <string>

#include "tools/command_line/command_line.hpp"

int main(int argc, char** argv) {
  std::string source, target;
  int size = 0;
  sdk::CommandLine line;
  line.add_option("DRAWING", source)->required();
  line.add_option("SIZE", size)->required()->transform(sdk::whole_number(1));
  line.add_option("PICTURE", target)->required();
  if (!line.read(argc, argv)) {
    std::cerr << "usage: render_icon DRAWING.svg SIZE PICTURE.png\n";
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(source.c_str()));
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  return drawing.isValid() && picture.save(QString::fromLocal8Bit(target.c_str()), "PNG") ? 0 : 1;
}
