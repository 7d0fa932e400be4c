// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/dialog_looks.hpp"

#include <QAbstractButton>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QStyledItemDelegate>
#include <QTreeView>

#include "game/globals.hpp"
#include "ui/qt/icons.hpp"

namespace sdk {

namespace {

constexpr int picture_side = 36;
constexpr int frame_buttons_width = 150;

const char* picture_name(Icon icon) {
  switch (icon) {
    case Icon::exclamation:
      return "box_exclamation";
    case Icon::critical:
      return "box_critical";
    case Icon::question:
      return "box_question";
    case Icon::none:
      break;
  }
  return nullptr;
}

/// Qt tells a file's size in the system's language.
class SizeDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QFileInfo file(index.siblingAtColumn(0).data(QFileSystemModel::FilePathRole).toString());
    if (file.isFile()) option->text = language().formattedDataSize(file.size());
  }

 private:
  static QLocale language() {
    return globals.Langue == "Fr" ? QLocale(QLocale::French) : QLocale(QLocale::English);
  }
};

}  // namespace

void fit_looks(QMessageBox& box, Icon icon) {
  box.setTextFormat(Qt::PlainText);
  set_picture(box, icon);
  fit_title(box);
  remove_button_icons(box);
}

void set_picture(QMessageBox& box, Icon icon) {
  if (const char* name = picture_name(icon))
    box.setIconPixmap(box_picture(name, picture_side, box.devicePixelRatioF()));
}

void fit_title(QMessageBox& box) {
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (!rows) return;
  const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + frame_buttons_width;
  rows->addItem(new QSpacerItem(width, 0), rows->rowCount(), 0, 1, rows->columnCount());
}

void remove_button_icons(QMessageBox& box) {
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
}

void fit_columns(QFileDialog& dialog) {
  constexpr int size_column = 1, type_column = 2;  // of QFileSystemModel
  auto* files = dialog.findChild<QTreeView*>("treeView");
  if (!files) return;
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  files->hideColumn(type_column);
  files->setItemDelegateForColumn(size_column, new SizeDelegate(files));
}

}  // namespace sdk
