// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/manuscript.hpp"

#include <QRegularExpression>
#include <QStringList>

#include "explanations/explanations.hpp"
#include "tools/guide/positions.hpp"
#include "ui/version.hpp"

namespace sdk {

namespace {

QString told(const QString& step, std::string_view language) {
  const std::deque<Event> steps = steps_to(position_named(step.toStdString()));
  return QString::fromStdString(explain(steps, language).back());
}

QString with_steps_told(QString text, std::string_view language) {
  static const QRegularExpression place(R"(\{step ([\w-]+)\})");
  for (auto match = place.match(text); match.hasMatch(); match = place.match(text))
    text.replace(match.capturedStart(), match.capturedLength(), told(match.captured(1), language));
  return text;
}

QString filled_in(QString text, std::string_view language) {
  text.replace("{page}", page_address).replace("{version}", program_version);
  return with_steps_told(std::move(text), language);
}

bool starts_passage(const QString& line) {
  static const QRegularExpression heading("^#{1,3} ");
  return heading.match(line).hasMatch();
}

}  // namespace

Manuscript parse_manuscript(QString text, std::string_view language) {
  Manuscript manuscript;
  for (const QString& line : filled_in(std::move(text), language).split('\n')) {
    if (line.startsWith("# ")) manuscript.title = line.mid(2);
    if (manuscript.passages.empty() || starts_passage(line))
      manuscript.passages.push_back({"", line.startsWith("### ")});
    manuscript.passages.back().markdown += line + '\n';
  }
  return manuscript;
}

}  // namespace sdk
