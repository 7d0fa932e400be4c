// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a sentence of a hint is painted in its list.

#include <QListView>
#include <QPainter>
#include <QStaticText>
#include <QStringListModel>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/sentence_delegate.hpp"

namespace sdk::test {

namespace {

const QColor paper(250, 250, 250), ink(10, 10, 10), chosen_paper(0, 0, 200),
    chosen_ink(255, 255, 0);

QStringList ten_sentences() {
  QStringList all;
  for (int i = 1; i <= 10; ++i) all << QString::number(i) + ". Sentence";
  return all;
}

bool has(const QImage& image, const QColor& colour) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) return true;
  return false;
}

/// The columns that differ from the paper, as far as `right`.
int first_inked_column(const QImage& image, int left, const QColor& back) {
  for (int x = left; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (image.pixelColor(x, y) != back) return x;
  return -1;
}

}  // namespace

class SentencePaintingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QFont font = view_.font();
    font.setStyleStrategy(QFont::NoAntialias);
    view_.setFont(font);
    view_.setModel(&model_);
  }

  void a_sentence_is_written_in_the_colour_of_texts() {
    const QImage image = painted(0, QStyle::State_Active);
    QVERIFY(has(image, ink) && has(image, paper));
    QVERIFY(!has(image, chosen_paper) && !has(image, chosen_ink));
  }

  void a_chosen_one_is_highlighted() {
    const QImage image = painted(0, QStyle::State_Active | QStyle::State_Selected);
    QVERIFY(has(image, chosen_ink) && has(image, chosen_paper));
    QVERIFY(!has(image, ink) && !has(image, paper));
  }

  void in_another_window_it_has_the_colours_of_an_inactive_list() {
    QVERIFY(!has(painted(0, QStyle::State_Selected), chosen_paper));
  }

  void all_texts_begin_below_each_other_and_the_numbers_at_the_left() {
    const int indent = 4 + metrics().horizontalAdvance("10. ");
    for (const int row : {0, 9}) {
      const QImage image = painted(row, QStyle::State_Active);
      const int number = first_inked_column(image, 0, paper);
      QVERIFY(number >= 4 && number <= 8);
      const int text = first_inked_column(image, indent - 2, paper);
      QVERIFY2(text >= indent && text <= indent + 3, qPrintable(QString::number(text - indent)));
    }
  }

  void a_long_sentence_is_wrapped_beside_its_number() {
    model_.setStringList({"1. " + QString("word ").repeated(30).trimmed()});
    const QSize size = delegate_.sizeHint(option(0, {}), model_.index(0, 0));
    QCOMPARE(size.width(), 200);
    QVERIFY(size.height() > 3 * metrics().height());
    const QImage image = painted(0, QStyle::State_Active);
    const int indent = 4 + metrics().horizontalAdvance("1. ");
    const QImage below = image.copy(0, metrics().height() + 2, indent, image.height());
    QVERIFY(!has(below, ink));
  }

  void number_and_text_stand_4_pixels_inside_the_row_and_1_below_its_edge() {
    const QString words = QString("word ").repeated(30).trimmed();
    model_.setStringList({"1. " + words});
    QStyleOptionViewItem look = option(0, QStyle::State_Active);
    const int indent = 4 + metrics().horizontalAdvance("1. ");
    const QStaticText text = wrapped(words, 200 - indent - 4);
    QCOMPARE(look.rect.height(), qCeil(text.size().height()) + 2);
    look.rect.translate(10, 20);
    QImage expected(220, look.rect.height() + 30, QImage::Format_RGB32), found;
    expected.fill(paper);
    found = expected;
    {
      QPainter painter(&expected);
      painter.setFont(view_.font());
      painter.setPen(ink);
      painter.drawText(QRect(14, 21, 100, 100), Qt::AlignLeft, "1. ");
      painter.drawStaticText(10 + indent, 21, text);
    }
    QPainter painter(&found);
    delegate_.paint(&painter, look, model_.index(0, 0));
    QCOMPARE(found, expected);
  }

  void a_short_sentence_takes_one_line() {
    const int height = delegate_.sizeHint(option(0, {}), model_.index(0, 0)).height();
    QVERIFY(height >= metrics().height() + 2 && height <= metrics().height() + 4);
  }

  void the_height_follows_the_width_and_the_font() {
    model_.setStringList({"1. " + QString("word ").repeated(30).trimmed()});
    const auto height = [this](const QStyleOptionViewItem& option) {
      return delegate_.sizeHint(option, model_.index(0, 0)).height();
    };
    QStyleOptionViewItem large = option(0, {});
    const int small_height = height(large);
    large.font.setPixelSize(40);
    large.fontMetrics = QFontMetrics(large.font);
    QVERIFY(height(large) > 2 * small_height);
    QStyleOptionViewItem wide = option(0, {});
    wide.rect.setWidth(2000);
    QVERIFY(height(wide) < small_height);
  }

  void the_painter_is_left_as_it_was() {
    QImage image(200, 40, QImage::Format_RGB32);
    QPainter painter(&image);
    const QPen pen(Qt::green, 3);
    QFont font;
    font.setPixelSize(31);
    painter.setPen(pen);
    painter.setFont(font);
    delegate_.paint(&painter, option(0, QStyle::State_Selected), model_.index(0, 0));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.font().pixelSize(), 31);
  }

  void cleanup() { model_.setStringList(ten_sentences()); }

 private:
  QFontMetrics metrics() const { return QFontMetrics(view_.font()); }

  QStaticText wrapped(const QString& words, int width) const {
    QStaticText text(words);
    text.setTextFormat(Qt::PlainText);
    text.setTextWidth(width);
    text.prepare({}, view_.font());
    return text;
  }

  QStyleOptionViewItem option(int row, QStyle::State state) const {
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 200, 100);
    option.font = view_.font();
    option.fontMetrics = metrics();
    option.state = state;
    option.palette.setColor(QPalette::Active, QPalette::Text, ink);
    option.palette.setColor(QPalette::Active, QPalette::Highlight, chosen_paper);
    option.palette.setColor(QPalette::Active, QPalette::HighlightedText, chosen_ink);
    option.rect.setHeight(delegate_.sizeHint(option, model_.index(row, 0)).height());
    return option;
  }

  QImage painted(int row, QStyle::State state) const {
    const QStyleOptionViewItem look = option(row, state);
    QImage image(look.rect.size(), QImage::Format_RGB32);
    image.fill(paper);
    QPainter painter(&image);
    delegate_.paint(&painter, look, model_.index(row, 0));
    return image;
  }

  QListView view_;
  QStringListModel model_{ten_sentences()};
  SentenceDelegate delegate_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::SentencePaintingTest)
#include "sentence_painting_test.moc"
