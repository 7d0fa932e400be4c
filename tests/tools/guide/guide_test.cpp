// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The guides: what they hold, how they are set, and what happens when they cannot be made.

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextTable>
#include <QtTest>
#include <algorithm>

#include "explanations/explanations.hpp"
#include "logic/techniques.hpp"
#include "tools/guide/errors.hpp"
#include "tools/guide/manuscript.hpp"
#include "tools/guide/pages.hpp"
#include "tools/guide/pictures.hpp"
#include "tools/guide/positions.hpp"
#include "tools/guide/typesetting.hpp"
#include "ui/version.hpp"

namespace sdk::test {

namespace {

QByteArray content(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("%s cannot be read", qPrintable(name));
  return file.readAll();
}

QString text_of(const QString& language) {
  return QString::fromUtf8(content(GUIDE_TEXTS "/" + language.toLower() + ".md"));
}

QStringList matches(const QString& pattern, const QString& text) {
  QStringList found;
  auto all = QRegularExpression(pattern).globalMatch(text);
  while (all.hasNext()) found << all.next().captured(1);
  return found;
}

QStringList pictures_in(const QString& text) { return matches(R"(!\[[^\]]+\]\(([^)]+)\))", text); }

Manuscript manuscript_in(const QString& language) {
  return parse_manuscript(text_of(language), language.toStdString());
}

/// Whether the position is one for the technique and the rule.
bool is_for(const GuidePosition& position, const Technique& technique, Rule rule) {
  return position.technique == technique.id && position.rule == rule;
}

/// The section that shows the picture; empty when none does.
QString section_with(const QString& picture, const QString& language) {
  for (const Passage& passage : manuscript_in(language).passages)
    if (passage.is_section && pictures_in(passage.markdown) == QStringList(picture))
      return passage.markdown;
  return "";
}

/// `count` lines, then `ending`, on small pages.
std::unique_ptr<QTextDocument> document_ending(int count, const QString& ending) {
  Manuscript manuscript{"", {{QString("A line.\n\n").repeated(count), false}}};
  manuscript.passages.push_back({ending, false});
  Pictures pictures("En");
  auto document = typeset(manuscript, pictures);
  document->setPageSize({400, 300});
  return document;
}

/// The page of its first line; where a line did not fit, its paragraph begins on the page before.
int page_of(const QTextDocument& document, const QTextBlock& block) {
  const double top = document.documentLayout()->blockBoundingRect(block).top();
  const double line = top + block.layout()->lineAt(0).rect().center().y();
  return static_cast<int>(line / document.pageSize().height());
}

QTextBlock block_with(const QTextDocument& document, const QString& text) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    if (block.text() == text) return block;
  qFatal("no paragraph reads %s", qPrintable(text));
}

struct Ending {
  int status;
  QString errors;
};

Ending run_tool(const QStringList& arguments) {
  QProcess tool;
  tool.start(GUIDE_TOOL, arguments);
  if (!tool.waitForFinished()) qFatal("the tool does not end");
  return {tool.exitCode(), QString::fromLocal8Bit(tool.readAllStandardError())};
}

}  // namespace

class GuideTest : public QObject {
  Q_OBJECT

 private slots:
  void the_guides_stand_beside_the_program_and_have_8_to_16_pages_data() { languages(); }
  void the_guides_stand_beside_the_program_and_have_8_to_16_pages() {
    QFETCH(QString, language);
    const QByteArray pdf = content(GUIDES "/Sudoku_" + language + ".pdf");
    QVERIFY(pdf.startsWith("%PDF-"));
    const auto pages = matches(R"(/Type /(Page)\b)", QString::fromLatin1(pdf)).size();
    QVERIFY2(pages >= 8 && pages <= 16, qPrintable(QString("%1 pages").arg(pages)));
  }

  void a_guide_shows_every_picture_that_is_taken_and_no_other_data() { languages(); }
  void a_guide_shows_every_picture_that_is_taken_and_no_other() {
    QFETCH(QString, language);
    QStringList shown = pictures_in(text_of(language)), taken;
    for (const QString& name : Pictures(language.toStdString()).names()) taken << name;
    shown.sort();
    taken.sort();
    QCOMPARE(shown, taken);
  }

  void every_position_has_its_heading_picture_and_two_sentences_data() { languages(); }
  void every_position_has_its_heading_picture_and_two_sentences() {
    QFETCH(QString, language);
    for (const GuidePosition& position : positions()) {
      const std::string name = name_of(position);
      const QString section = section_with("step-" + QString::fromStdString(name), language);
      QVERIFY2(section.startsWith("### "), name.c_str());
      const QString explanation = section.split("\n\n").value(2);
      QCOMPARE(matches(R"(([.!?])(?=\s|$))", explanation).size(), 2);
    }
  }

  void every_position_tells_its_own_step_data() { languages(); }
  void every_position_tells_its_own_step() {
    QFETCH(QString, language);
    for (const GuidePosition& position : positions()) {
      const QString name = QString::fromStdString(name_of(position));
      const auto told = explain(steps_to(position), language.toStdString()).back();
      QCOMPARE(section_with("step-" + name, language).split("\n\n").value(3),
               "*" + QString::fromStdString(told) + "*");
    }
  }

  void a_position_that_does_not_lead_to_its_technique_is_a_fault() {
    GuidePosition position = position_named("xy_wing");
    position.technique = position_named("jellyfish").technique;
    QVERIFY_THROWS_EXCEPTION(std::logic_error, steps_to(position));
  }

  void every_technique_has_a_position_and_the_unique_rectangle_one_a_rule() {
    for (std::size_t row = 0; row < row_count; ++row)
      QVERIFY2(std::ranges::count(positions(), technique_at(row).id, &GuidePosition::technique) > 0,
               technique_at(row).name.data());
    const Technique& rectangle = technique_named("unique_rectangle");
    for (const Rule rule : {Rule::odd_corner, Rule::two_share_a_digit, Rule::bound_to_roof,
                            Rule::three_share_a_digit, Rule::bound_to_diagonal})
      QCOMPARE(std::ranges::count_if(positions(),
                                     [&](const GuidePosition& position) {
                                       return is_for(position, rectangle, rule);
                                     }),
               1);
  }

  void a_position_that_is_not_there_is_named() {
    try {
      parse_manuscript("{step no_such_step}", "En");
      QFAIL("nothing is wrong with it");
    } catch (const GuideError& error) {
      QVERIFY2(QString(error.what()).contains("no_such_step"), error.what());
    }
  }

  void every_picture_can_be_taken_data() { languages(); }
  void every_picture_can_be_taken() {
    QFETCH(QString, language);
    Pictures pictures(language.toStdString());
    for (const QString& name : pictures.names())
      QVERIFY2(has_a_drawing(pictures, name), qPrintable(name));
  }

  void the_pictures_are_in_the_language_of_the_guide() {
    Pictures english("En");
    const QImage image = english.take("window").image;
    QVERIFY(Pictures("Fr").take("window").image != image);
  }

  void page_and_version_are_those_of_the_program() {
    const Manuscript manuscript =
        parse_manuscript("# A title\n\nSee {page} for {version}.\n", "En");
    QCOMPARE(manuscript.title, "A title");
    QCOMPARE(manuscript.passages.front().markdown,
             QString("# A title\n\nSee %1 for %2.\n\n").arg(page_address, program_version));
  }

  void only_headings_of_the_third_level_begin_sections() {
    const auto passages = parse_manuscript("# A\n\n## B\n\n### C\n\n#### D\n", "En").passages;
    QCOMPARE(passages.size(), std::size_t{3});
    QVERIFY(!passages[0].is_section && !passages[1].is_section && passages[2].is_section);
  }

  void sections_stand_side_by_side() {
    Pictures pictures("En");
    const auto document = typeset(parse_manuscript("### A\n\na\n\n### B\n\nb\n", "En"), pictures);
    const QTextTable* table = QTextCursor(block_with(*document, "B")).currentTable();
    QVERIFY(table);
    QCOMPARE(table->cellAt(0, 1).firstCursorPosition().block().text(), "B");
    QCOMPARE(table->cellAt(0, 0).firstCursorPosition().block().text(), "A");
  }

  void no_heading_stands_alone_at_the_foot_of_a_page() {
    for (int lines = 5; lines < 25; ++lines) {
      const auto document = document_ending(lines, "## Heading\n\nIts text.\n");
      break_pages(*document);
      QCOMPARE(page_of(*document, block_with(*document, "Heading")),
               page_of(*document, block_with(*document, "Its text.")));
    }
  }

  void a_table_is_on_one_page_with_its_heading() {
    for (int lines = 5; lines < 25; ++lines) {
      const auto document =
          document_ending(lines, "## Heading\n\n|A|B|\n|---|---|\n|c|d|\n|e|f|\n");
      break_pages(*document);
      QCOMPARE(page_of(*document, block_with(*document, "Heading")),
               page_of(*document, block_with(*document, "f")));
    }
  }

  void a_table_is_not_cut() {
    for (int lines = 5; lines < 25; ++lines) {
      const auto document = document_ending(lines, "Text.\n\n|A|B|\n|---|---|\n|c|d|\n|e|f|\n");
      break_pages(*document);
      QCOMPARE(page_of(*document, block_with(*document, "A")),
               page_of(*document, block_with(*document, "f")));
    }
  }

  void a_picture_that_fits_on_no_page_is_refused() {
    Pictures pictures("En");
    const auto document = typeset(parse_manuscript("![Window](window)\n", "En"), pictures);
    QTextCursor cursor(document.get());
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextImageFormat format = cursor.charFormat().toImageFormat();
    format.setHeight(millimetres(300));
    cursor.setCharFormat(format);
    QVERIFY_THROWS_EXCEPTION(GuideError, pdf_of(*document, ""));
  }

  void a_text_that_cannot_be_read_is_named() {
    const Ending ending = run_tool({"En", "/nonexistent/text.md", folder_.filePath("a.pdf")});
    QCOMPARE(ending.status, 1);
    QVERIFY2(ending.errors.contains("/nonexistent/text.md"), qPrintable(ending.errors));
    QVERIFY(!QFile::exists(folder_.filePath("a.pdf")));
  }

  void a_picture_that_nobody_takes_is_named_and_the_old_guide_stays() {
    write("text.md", "# T\n\n![Nothing](no-such-picture)\n");
    write("old.pdf", "old");
    const Ending ending =
        run_tool({"En", folder_.filePath("text.md"), folder_.filePath("old.pdf")});
    QCOMPARE(ending.status, 1);
    QVERIFY2(ending.errors.contains("text.md") && ending.errors.contains("no-such-picture"),
             qPrintable(ending.errors));
    QCOMPARE(content(folder_.filePath("old.pdf")), "old");
  }

  void a_guide_that_cannot_be_written_is_named() {
    write("text.md", "# T\n");
    const Ending ending = run_tool({"Fr", folder_.filePath("text.md"), "/nonexistent/guide.pdf"});
    QCOMPARE(ending.status, 1);
    QVERIFY2(ending.errors.contains("/nonexistent/guide.pdf"), qPrintable(ending.errors));
  }

  void two_guides_made_for_one_date_are_the_same() {
    write("text.md", "# T\n\nText, and a picture: ![Window](window)\n");
    qputenv("SOURCE_DATE_EPOCH", "1000000000");
    for (const char* name : {"a.pdf", "b.pdf"})
      QCOMPARE(run_tool({"En", folder_.filePath("text.md"), folder_.filePath(name)}).status, 0);
    qunsetenv("SOURCE_DATE_EPOCH");
    QVERIFY(content(folder_.filePath("a.pdf")).contains("/CreationDate (D:20010909014640Z)"));
    QCOMPARE(content(folder_.filePath("a.pdf")), content(folder_.filePath("b.pdf")));
  }

  void a_wrong_call_is_told_how_to_call() {
    for (const QStringList& arguments : {QStringList{}, {"De", "a", "b"}, {"En", "a"}}) {
      const Ending ending = run_tool(arguments);
      QCOMPARE(ending.status, 2);
      QVERIFY(ending.errors.startsWith("usage: sudoku-guide"));
    }
  }

 private:
  static void languages() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"En", "Fr"}) QTest::newRow(language) << language;
  }

  /// It has a size and is not of one colour.
  static bool has_a_drawing(Pictures& pictures, const QString& name) {
    const auto [image, width] = pictures.take(name);
    if (image.isNull() || width <= 0) return false;
    QImage plain(image.size(), image.format());
    plain.setDevicePixelRatio(image.devicePixelRatio());
    plain.fill(image.pixelColor(image.width() / 2, 1));
    return plain != image;
  }

  void write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("%s cannot be written", qPrintable(name));
  }

  QTemporaryDir folder_;
};

}  // namespace sdk::test

int main(int argc, char** argv) {
  sdk::prepare_screen();
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  sdk::test::GuideTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "guide_test.moc"
