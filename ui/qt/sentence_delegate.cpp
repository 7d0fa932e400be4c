// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/sentence_delegate.hpp"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace sdk {

namespace {

constexpr int side_margin = 4, row_margin = 1;

/// A row in its two parts.
struct Sentence {
  explicit Sentence(const QModelIndex& index) {
    const QString row = index.data().toString();
    const qsizetype blank = row.indexOf(' ');
    number = row.left(blank + 1);
    text = row.mid(blank + 1);
  }
  QString number, text;
};

/// Where the text of a row stands; all rows of a list leave the same room to their numbers.
QRect room_of_text(const QRect& row, const QFontMetrics& metrics, const QModelIndex& index) {
  const QString widest = QString::number(index.model()->rowCount()) + ". ";
  const int number_width = metrics.horizontalAdvance(widest);
  return row.adjusted(side_margin + number_width, row_margin, -side_margin, -row_margin);
}

QPalette::ColorGroup group_of(const QStyleOptionViewItem& option) {
  return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

const QStaticText& SentenceDelegate::wrapped(const QString& text, int width,
                                             const QFont& font) const {
  Wrapped* kept = wrapped_.object(text);
  if (kept && kept->text.textWidth() == width && kept->font == font) return kept->text;
  kept = new Wrapped{QStaticText(text), font};
  kept->text.setTextFormat(Qt::PlainText);
  kept->text.setTextWidth(width);
  kept->text.prepare({}, font);
  wrapped_.insert(text, kept);
  return kept->text;
}

void SentenceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const Sentence sentence(index);
  const bool chosen = option.state.testFlag(QStyle::State_Selected);
  const QRect room = room_of_text(option.rect, option.fontMetrics, index);
  const QPalette::ColorGroup group = group_of(option);
  painter->save();
  painter->setFont(option.font);
  if (chosen) painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
  painter->setPen(option.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::Text));
  painter->drawText(room.translated(side_margin - room.left() + option.rect.left(), 0),
                    Qt::AlignLeft | Qt::TextDontClip, sentence.number);
  painter->drawStaticText(room.topLeft(), wrapped(sentence.text, room.width(), option.font));
  painter->restore();
}

QSize SentenceDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
  const int width = list ? list->viewport()->width() : option.rect.width();
  const QRect room = room_of_text(QRect(0, 0, width, 1 << 16), option.fontMetrics, index);
  const QSizeF text = wrapped(Sentence(index).text, room.width(), option.font).size();
  return {width, qCeil(text.height()) + 2 * row_margin};
}

bool SentenceDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                 const QStyleOptionViewItem&, const QModelIndex& index) {
  const bool too_long = view->visualRect(index).height() > view->viewport()->height();
  // Only a rich text is wrapped.
  const QString text = "<qt>" + index.data().toString().toHtmlEscaped() + "</qt>";
  QToolTip::showText(event->globalPos(), too_long ? text : QString(), view);
  return true;
}

}  // namespace sdk
