// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Paints the rows of a list of numbered sentences.
#pragma once

#include <QAbstractItemDelegate>

namespace sdk {

/// A row is a number, a blank and a text, which is wrapped to the right of the number.
class SentenceDelegate : public QAbstractItemDelegate {
 public:
  using QAbstractItemDelegate::QAbstractItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  /// As wide as the list's viewport, and as high as the text is then.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// The mouse over a sentence that is too long for the list is told the whole.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

}  // namespace sdk
