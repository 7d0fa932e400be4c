// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How the guides' texts are set, and how they are painted on pages.

#include <QTextBlock>
#include <QTextTable>
#include <QtTest>

#include "tools/guide/manuscript.hpp"
#include "tools/guide/pages.hpp"
#include "tools/guide/pictures.hpp"
#include "tools/guide/studio.hpp"
#include "tools/guide/typesetting.hpp"

namespace sdk::test {

namespace {

const QColor blue(0x1f, 0x4e, 0x79);

QTextBlock block_with(const QTextDocument& document, const QString& text) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    if (block.text().contains(text)) return block;
  qFatal("no paragraph holds %s", qPrintable(text));
}

const QString picture_sign(QChar::ObjectReplacementCharacter);

QTextCharFormat text_format(const QTextBlock& block) {
  return block.begin().fragment().charFormat();
}

/// The stretch of a paragraph that reads so.
QTextCharFormat format_of(const QTextBlock& block, const QString& stretch) {
  for (auto it = block.begin(); !it.atEnd(); ++it)
    if (it.fragment().text() == stretch) return it.fragment().charFormat();
  qFatal("no stretch reads %s", qPrintable(stretch));
}

/// What is drawn on each page of a PDF document, as it is packed there.
QByteArrayList page_contents(const QByteArray& pdf) {
  QByteArrayList contents;
  for (int at = 0; (at = pdf.indexOf("/Contents ", at)) >= 0; ++at) {
    const QByteArray object = pdf.mid(at + 10, 10).split(' ').front();
    const auto begin = pdf.indexOf("stream\n", pdf.indexOf("\n" + object + " 0 obj")) + 7;
    contents << pdf.mid(begin, pdf.indexOf("endstream", begin) - begin);
  }
  return contents;
}

}  // namespace

class TypesettingTest : public QObject {
  Q_OBJECT

 private slots:
  void headings_are_blue_and_bold_and_smaller_with_every_level() {
    const auto document = set("# One\n\n## Two\n\n### Three\n\n#### Four\n");
    const auto looks = [&](const QString& name, double size, double above, double below) {
      const QTextBlock block = block_with(*document, name);
      return text_format(block).fontPointSize() == size &&
             text_format(block).fontWeight() == QFont::Bold &&
             !text_format(block).hasProperty(QTextFormat::FontSizeAdjustment) &&
             text_format(block).foreground().color() == blue &&
             block.blockFormat().topMargin() == millimetres(above) &&
             block.blockFormat().bottomMargin() == millimetres(below);
    };
    QVERIFY(looks("One", 22, 0, 2));
    QVERIFY(looks("Two", 13, 5, 1.5));
    QVERIFY(looks("Three", 9.5, 0, 1));
    QVERIFY(looks("Four", 9.5, 0, 1));
  }

  void a_paragraph_has_wide_lines_and_a_gap_below() {
    const auto document = set("Plain.\n\n- item\n");
    QCOMPARE(document->defaultFont().pointSizeF(), 9.0);
    QCOMPARE(document->documentMargin(), 0.0);
    const QTextBlockFormat plain = block_with(*document, "Plain").blockFormat();
    QCOMPARE(plain.topMargin(), 0.0);
    QCOMPARE(plain.bottomMargin(), millimetres(2));
    QCOMPARE(plain.lineHeight(), 112.0);
    QCOMPARE(plain.lineHeightType(), int(QTextBlockFormat::ProportionalHeight));
    QCOMPARE(block_with(*document, "item").blockFormat().bottomMargin(), millimetres(0.7));
  }

  void links_are_blue_and_keys_black_and_both_as_large_as_the_text() {
    const auto document = set("A [link](https://a.b/) and `code`.\n");
    const QTextBlock block = block_with(*document, "link");
    QCOMPARE(format_of(block, "link").foreground().color(), blue);
    QCOMPARE(format_of(block, "code").foreground().color(), QColor(Qt::black));
    QCOMPARE(format_of(block, "link").fontPointSize(), 9.0);
    QCOMPARE(format_of(block, "code").fontPointSize(), 9.0);
    QVERIFY(!format_of(block, "A ").hasProperty(QTextFormat::ForegroundBrush));
  }

  void a_picture_alone_stands_in_the_middle_of_its_line() {
    const auto document = set("![w](window)\n");
    const QTextBlockFormat format = block_with(*document, picture_sign).blockFormat();
    QCOMPARE(format.alignment(), Qt::AlignHCenter);
    QCOMPARE(format.bottomMargin(), millimetres(1.2));
    QVERIFY(!format.hasProperty(QTextFormat::LineHeight));
  }

  void a_picture_in_a_text_or_a_section_does_not() {
    const auto text = set("Text ![w](window)\n");
    const QTextBlockFormat in_text = block_with(*text, "Text").blockFormat();
    QVERIFY(in_text.alignment() != Qt::AlignHCenter);
    QCOMPARE(in_text.bottomMargin(), millimetres(2));
    const auto section = set("### A\n\n![w](window)\n");
    QVERIFY(block_with(*section, picture_sign).blockFormat().alignment() != Qt::AlignHCenter);
  }

  void a_picture_is_as_wide_as_it_says_and_keeps_its_proportions() {
    const auto document = set("![w](window)\n");
    const auto [image, width] = pictures_.take("window");
    const auto format = text_format(block_with(*document, picture_sign)).toImageFormat();
    QCOMPARE(format.width(), millimetres(width));
    QCOMPARE(format.height(), millimetres(width) * image.height() / image.width());
    QVERIFY(document->resource(QTextDocument::ImageResource, QUrl("window")).value<QImage>() ==
            image);
  }

  void a_table_has_a_rule_below_its_head_only() {
    const auto document = set("Text.\n\n|A|B|\n|---|---|\n|c|d|\n");
    const QTextTable& table = *QTextCursor(block_with(*document, "A")).currentTable();
    QCOMPARE(table.format().border(), 0.0);
    QVERIFY(table.format().borderCollapse());
    QCOMPARE(table.format().topMargin(), millimetres(2));
    for (int column : {0, 1}) {
      const auto head = table.cellAt(0, column).format().toTableCellFormat();
      const auto body = table.cellAt(1, column).format().toTableCellFormat();
      QCOMPARE(head.bottomBorder(), 1.0);
      QCOMPARE(head.bottomBorderStyle(), QTextFrameFormat::BorderStyle_Solid);
      QCOMPARE(head.bottomBorderBrush().color(), QColor(0xc8, 0xc8, 0xc8));
      QCOMPARE(body.bottomBorder(), 0.0);
      for (const auto& format : {head, body}) {
        QCOMPARE(format.verticalAlignment(), QTextCharFormat::AlignMiddle);
        QCOMPARE(format.rightPadding(), millimetres(3));
        QCOMPARE(format.leftPadding(), millimetres(0.7));
      }
    }
    QCOMPARE(block_with(*document, "c").blockFormat().bottomMargin(), 0.0);
  }

  void sections_share_the_width_two_by_two() {
    const auto document = set("### A\n\n### B\n\n### C\n\nText.\n");
    const QTextTable* first = QTextCursor(block_with(*document, "A")).currentTable();
    const QTextTable* second = QTextCursor(block_with(*document, "C")).currentTable();
    QVERIFY(first && second && first != second);
    QCOMPARE(QTextCursor(block_with(*document, "B")).currentTable(), first);
    QCOMPARE(first->format().width(), QTextLength(QTextLength::PercentageLength, 100));
    QCOMPARE(first->format().cellPadding(), millimetres(2));
    const QTextLength half(QTextLength::PercentageLength, 50);
    QCOMPARE(first->format().columnWidthConstraints(), (QList<QTextLength>{half, half}));
  }

  void every_page_shows_its_own_part() {
    const auto document = set(QString("A line.\n\n").repeated(100) + "# The end\n");
    const QByteArrayList pages = page_contents(pdf_of(*document, "T"));
    QCOMPARE(pages.size(), 3);
    QVERIFY2(pages.back().size() < pages.front().size(), "the last page is no shorter");
    QVERIFY(pages[0] != pages[1] && pages[1] != pages[2]);
  }

  void a_desktop_of_any_colours_gives_the_same_pages() {
    const auto pages = [this] { return page_contents(pdf_of(*set("# A\n\nText.\n"), "T")); };
    const QByteArrayList light = pages();
    QApplication::setPalette(QPalette(QColor(53, 53, 56), QColor(45, 45, 48)));
    const QByteArrayList dark = pages();
    QApplication::setPalette(QPalette());
    QCOMPARE(dark, light);
  }

  void the_document_has_its_title_and_the_pages_are_a4() {
    const QByteArray pdf = pdf_of(*set("Text.\n"), "My title");
    QVERIFY(pdf.contains(QByteArray("\xfe\xff\0M\0y\0 \0t\0i\0t\0l\0e", 18)));
    QVERIFY(pdf.contains("/MediaBox [0 0 595"));
  }

  void pictures_show_a_puzzle_of_the_second_level() {
    Studio studio("En");
    studio.lay_out(
        "5.7...42.4...3.9.79.2.4.6.5..91..2...1.7.9.....8..31..7.4..8......5.28......1679.");
    QCOMPARE(globals.NiveauCourant, 1);
  }

 private:
  std::unique_ptr<QTextDocument> set(const QString& markdown) {
    return typeset(parse_manuscript(markdown, "En"), pictures_);
  }

  Pictures pictures_{"En"};
};

}  // namespace sdk::test

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  sdk::test::TypesettingTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "typesetting_test.moc"
