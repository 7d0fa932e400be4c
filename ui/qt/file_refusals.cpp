// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/file_refusals.hpp"

#include <QFileInfo>

#include "files/platform.hpp"
#include "game/globals.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

QString told(Notice which, const QString& file) {
  return QString::fromStdString(notice(which, globals.Langue, file.toStdString()));
}

bool may_write(const QString& file) { return platform::may_write(file.toStdString()); }

}  // namespace

QString refusal_to_open(const QString& file) {
  const QFileInfo info(file);
  if (info.isDir()) return told(Notice::is_folder, file);
  if (!info.exists()) return told(Notice::no_file, file);
  if (!platform::may_read(file.toStdString())) return told(Notice::unreadable_file, file);
  return {};
}

QString refusal_to_save(const QString& file) {
  const QFileInfo info(file);
  const QString folder = info.path();
  if (info.isDir()) return told(Notice::is_folder, file);
  if (!QFileInfo(folder).isDir()) return told(Notice::no_folder, folder);
  if (info.exists()) return may_write(file) ? QString() : told(Notice::closed_file, file);
  return may_write(folder) ? QString() : told(Notice::closed_folder, folder);
}

}  // namespace sdk
