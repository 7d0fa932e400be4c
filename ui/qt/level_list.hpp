// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The list of levels, on the window's own background.
#pragma once

#include <QComboBox>

namespace sdk {

/// Behind its texts it shows the palette's Base, closed as well as open, where a list of the style
/// looks like a button while it is closed.
class LevelList : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace sdk
