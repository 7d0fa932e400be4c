// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/contrast.hpp"

#include <algorithm>
#include <cmath>

namespace sdk {

namespace {

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// 0 for black, 1 for white.
double relative_luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

/// `percent` of the way from one colour to the other.
QColor mixture(const QColor& from, const QColor& to, int percent) {
  const auto mixed = [percent](int a, int b) { return a + (b - a) * percent / 100; };
  return QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                mixed(from.blue(), to.blue()));
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({relative_luminance(one), relative_luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor legible(const QColor& text, const QColor& back, double minimum) {
  const QColor end = contrast(Qt::black, back) > contrast(Qt::white, back) ? Qt::black : Qt::white;
  int percent = 0;
  while (percent < 100 && contrast(mixture(text, end, percent), back) < minimum) ++percent;
  return mixture(text, end, percent);
}

}  // namespace sdk
