// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/rescued_grids.hpp"

#include <QDir>
#include <QFileDialog>
#include <QListView>
#include <QUrl>

#include "ui/qt/accessibility.hpp"

namespace sdk {

namespace {

bool holds_puzzle(const QString& folder) {
  return !QDir(folder).entryList({"*.sdk"}, QDir::Files).isEmpty();
}

/// Qt names a place after its folder, and does so again whenever the folder changes.
void keep_name(QAbstractItemModel& places, const QPersistentModelIndex& place,
               const QString& name) {
  const auto set_name = [&places, place, name] {
    if (place.isValid() && place.data() != name) places.setData(place, name);
  };
  QObject::connect(&places, &QAbstractItemModel::dataChanged, &places, set_name);
  set_name();
}

}  // namespace

void offer_rescued_grids(QFileDialog& dialog, const QString& folder) {
  if (!holds_puzzle(folder)) return;
  dialog.setSidebarUrls(dialog.sidebarUrls() << QUrl::fromLocalFile(folder));
  auto* sidebar = dialog.findChild<QListView*>("sidebar");
  if (!sidebar) return;
  QAbstractItemModel& places = *sidebar->model();
  keep_name(places, places.index(places.rowCount() - 1, 0), notice_text(Notice::rescued_grids));
  sidebar->setMinimumWidth(sidebar->sizeHintForColumn(0) + 2 * sidebar->frameWidth());
}

}  // namespace sdk
