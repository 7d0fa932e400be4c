// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The language of Qt's own texts: Yes and No, Open, Save and Cancel.
#pragma once

#include <QTranslator>

namespace sdk {

/// Qt speaks English by itself; French comes from its catalogue.
class QtLanguage {
 public:
  /// Makes Qt's texts those of `Langue`. Costs nothing while the language is the same.
  void follow();

 private:
  QTranslator french_;
  bool speaks_french_ = false;
};

}  // namespace sdk
