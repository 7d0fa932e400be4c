// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The pictures of the guides, taken of the game's window when they are asked for.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "tools/guide/studio.hpp"

namespace sdk {

struct Picture {
  QImage image;
  double width;  ///< on paper, in millimetres; the height goes with it
};

class Pictures {
 public:
  /// `language` ("En" or "Fr") is that of the window.
  explicit Pictures(const std::string& language);

  /// Throws GuideError naming a picture that is not among names().
  Picture take(const QString& name);
  std::vector<QString> names() const;

 private:
  struct Shot {
    QString name;
    double width;
    std::function<QImage(Studio&)> take;
  };

  static std::vector<Shot> shots();
  static std::vector<Shot> shots_of_window();
  static std::vector<Shot> shots_of_cells();
  static std::vector<Shot> shots_of_buttons();
  static std::vector<Shot> shots_of_steps();

  Studio studio_;
  std::vector<Shot> shots_ = shots();
};

}  // namespace sdk
