// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The player's guide: a text in Markdown, set as pages with pictures of the game's window.
#pragma once

#include <QString>
#include <string>

#include "tools/guide/errors.hpp"

namespace sdk {

struct GuideOrder {
  std::string language;  ///< "En" or "Fr", of the text and of the window in the pictures
  QString text;          ///< the file to read
  QString document;      ///< the PDF file to write
};

/// Needs a QApplication. Throws GuideError, naming the file, when the text cannot be read, names a
/// picture that nobody takes or holds something that fits on no page, or when the document cannot
/// be written. A document that was there before then stays as it was.
void make_guide(const GuideOrder& order);

}  // namespace sdk
