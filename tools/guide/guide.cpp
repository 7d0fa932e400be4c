// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/guide.hpp"

#include <QFile>
#include <QSaveFile>

#include "tools/guide/manuscript.hpp"
#include "tools/guide/pages.hpp"
#include "tools/guide/pictures.hpp"
#include "tools/guide/typesetting.hpp"

namespace sdk {

namespace {

GuideError error_about(const QString& file, const QString& why) {
  return GuideError(file + ": " + why);
}

QString read(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) throw error_about(name, file.errorString());
  return QString::fromUtf8(file.readAll());
}

QByteArray set(const GuideOrder& order) {
  const QString text = read(order.text);
  Pictures pictures(order.language);
  try {
    const Manuscript manuscript = parse_manuscript(text, order.language);
    return pdf_of(*typeset(manuscript, pictures), manuscript.title);
  } catch (const GuideError& error) {
    throw error_about(order.text, error.what());
  }
}

/// Two builds of one state make the same guide where they are told the same date.
void set_date_of_build(QByteArray& pdf) {
  const QByteArray date = qgetenv("SOURCE_DATE_EPOCH");
  if (!date.isEmpty()) set_creation_date(pdf, date.toLongLong());
}

void write(const QString& name, const QByteArray& bytes) {
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
    throw error_about(name, file.errorString());
}

}  // namespace

void make_guide(const GuideOrder& order) {
  QByteArray pdf = set(order);
  set_date_of_build(pdf);
  write(order.document, pdf);
}

}  // namespace sdk
