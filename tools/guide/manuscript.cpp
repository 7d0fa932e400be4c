// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/manuscript.hpp"

#include <QRegularExpression>
#include <QStringList>

#include "ui/version.hpp"

namespace sdk {

namespace {

QString filled_in(QString text) {
  return text.replace("{page}", page_address).replace("{version}", program_version);
}

bool starts_passage(const QString& line) {
  static const QRegularExpression heading("^#{1,3} ");
  return heading.match(line).hasMatch();
}

}  // namespace

Manuscript parse_manuscript(QString text) {
  Manuscript manuscript;
  for (const QString& line : filled_in(std::move(text)).split('\n')) {
    if (line.startsWith("# ")) manuscript.title = line.mid(2);
    if (manuscript.passages.empty() || starts_passage(line))
      manuscript.passages.push_back({"", line.startsWith("### ")});
    manuscript.passages.back().markdown += line + '\n';
  }
  return manuscript;
}

}  // namespace sdk
