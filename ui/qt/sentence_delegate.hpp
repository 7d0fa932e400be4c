// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Paints the rows of a list of numbered sentences.
#pragma once

#include <QAbstractItemDelegate>
#include <QCache>
#include <QStaticText>

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

 private:
  /// The text wrapped to the width. Laying it out costs more than painting it, and the same text is
  /// measured and painted several times.
  const QStaticText& wrapped(const QString& text, int width, const QFont& font) const;

  struct Wrapped {
    QStaticText text;
    QFont font;
  };
  mutable QCache<QString, Wrapped> wrapped_;
};

}  // namespace sdk
