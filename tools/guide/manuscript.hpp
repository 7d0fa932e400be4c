// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The text of a guide before it is set.
#pragma once

#include <QString>
#include <string_view>
#include <vector>

namespace sdk {

/// A stretch of Markdown: a chapter up to its first section, or one section.
struct Passage {
  QString markdown;
  bool is_section;  ///< begins with a heading of the third level
};

struct Manuscript {
  QString title;  ///< the text of the heading of the first level; empty without one
  std::vector<Passage> passages;
};

/// Divides a text at its headings of the first three levels. In it, `{page}` and `{version}` become
/// the address of the game's web page and the program's version, and `{step NAME}` what the window
/// says in `language` of the step in the position of that name (positions.hpp). Throws GuideError
/// naming a step that is not there.
Manuscript parse_manuscript(QString text, std::string_view language);

}  // namespace sdk
