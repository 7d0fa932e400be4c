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

void write(const QString& name, const QByteArray& bytes) {
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
    throw error_about(name, file.errorString());
}

}  // namespace

void make_guide(const GuideOrder& order) { write(order.document, set(order)); }

}  // namespace sdk
