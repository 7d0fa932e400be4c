// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/typesetting.hpp"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <array>
#include <span>

namespace sdk {

namespace {

constexpr double body_size = 9;
constexpr QColor heading_colour(0x1f, 0x4e, 0x79);
constexpr QColor rule_colour(0xc8, 0xc8, 0xc8);

struct HeadingLook {
  double size;          ///< in points
  double above, below;  ///< in millimetres
};

/// Of the first to the third level.
constexpr std::array<HeadingLook, 3> heading_looks{{{22, 0, 2}, {13, 5, 1.5}, {9.5, 0, 1}}};

constexpr int sections_a_row = 2;

using Passages = std::span<const Passage>;

// Tables.

void rule_below(QTextTableCellFormat& format) {
  format.setBottomBorder(1);
  format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBottomBorderBrush(rule_colour);
}

QTextTableCellFormat cell_format(bool is_header) {
  QTextTableCellFormat format;
  format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
  format.setPadding(millimetres(0.7));
  format.setRightPadding(millimetres(3));
  if (is_header) rule_below(format);
  return format;
}

QTextTableFormat table_format(double padding) {
  QTextTableFormat format;
  format.setBorder(0);
  format.setBorderCollapse(true);
  format.setCellPadding(millimetres(padding));
  return format;
}

void style_table(QTextTable& table) {
  QTextTableFormat format = table_format(0.8);
  format.setTopMargin(millimetres(2));
  table.setFormat(format);
  for (int row = 0; row < table.rows(); ++row)
    for (int column = 0; column < table.columns(); ++column)
      table.cellAt(row, column).setFormat(cell_format(row == 0));
}

QTextTableFormat section_table_format() {
  QTextTableFormat format = table_format(2);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  const QTextLength share(QTextLength::PercentageLength, 100.0 / sections_a_row);
  format.setColumnWidthConstraints(QVector<QTextLength>(sections_a_row, share));
  return format;
}

// Putting the passages together.

void style_tables(const QTextDocument& document) {
  for (QTextFrame* frame : document.rootFrame()->childFrames())
    if (auto* table = qobject_cast<QTextTable*>(frame)) style_table(*table);
}

/// At an empty block.
void insert(QTextCursor cursor, const Passage& passage) {
  QTextDocument part;
  part.setMarkdown(passage.markdown, QTextDocument::MarkdownDialectGitHub);
  style_tables(part);
  cursor.setBlockFormat(part.begin().blockFormat());  // which a fragment does not bring with it
  cursor.insertFragment(QTextDocumentFragment(&part));
}

/// Side by side.
void insert_row(QTextCursor& cursor, Passages sections) {
  const QTextTable* table = cursor.insertTable(1, sections_a_row, section_table_format());
  for (int column = 0; const Passage& section : sections)
    insert(table->cellAt(0, column++).firstCursorPosition(), section);
  cursor.movePosition(QTextCursor::End);
}

/// Each row is a table of its own, which can be kept on one page.
void insert_sections(QTextCursor& cursor, Passages sections) {
  while (!sections.empty()) {
    const auto count = std::min<std::size_t>(sections.size(), sections_a_row);
    insert_row(cursor, sections.first(count));
    sections = sections.subspan(count);
  }
}

/// Takes the sections that stand first from `rest`.
Passages take_sections(Passages& rest) {
  const auto end = std::ranges::find(rest, false, &Passage::is_section);
  const auto count = static_cast<std::size_t>(end - rest.begin());
  const Passages sections = rest.first(count);
  rest = rest.subspan(count);
  return sections;
}

bool follows_table(const QTextCursor& cursor) {
  const QTextBlock before = cursor.block().previous();
  return before.isValid() && QTextCursor(before).currentTable();
}

/// An empty paragraph is the gap below a table: with a margin there, Qt loses its count of the
/// pages when one ends within it.
void insert_all(QTextDocument& document, Passages rest) {
  QTextCursor cursor(&document);
  while (!rest.empty()) {
    cursor.movePosition(QTextCursor::End);
    if (!cursor.atBlockStart() || follows_table(cursor)) cursor.insertBlock();
    if (rest.front().is_section) {
      insert_sections(cursor, take_sections(rest));
    } else {
      insert(cursor, rest.front());
      rest = rest.subspan(1);
    }
  }
}

// Text.

/// Calls `change(cursor, format)` for each stretch of text of one format; the cursor selects it.
template <class Change>
void for_each_stretch(const QTextBlock& block, Change change) {
  std::vector<QTextFragment> stretches;  // changes invalidate the block's iterator
  for (auto it = block.begin(); !it.atEnd(); ++it) stretches.push_back(it.fragment());
  for (const QTextFragment& stretch : stretches) {
    QTextCursor cursor(block);
    cursor.setPosition(stretch.position());
    cursor.setPosition(stretch.position() + stretch.length(), QTextCursor::KeepAnchor);
    change(cursor, stretch.charFormat());
  }
}

/// Whether a picture is all that the paragraph holds.
bool is_picture(const QTextBlock& block) {
  return block.length() == 2 && block.text().at(0) == QChar::ObjectReplacementCharacter;
}

void style_heading(const QTextBlock& block) {
  const int level = std::min(block.blockFormat().headingLevel(), 3);
  const HeadingLook& look = heading_looks.at(static_cast<std::size_t>(level - 1));
  QTextBlockFormat format;
  format.setTopMargin(millimetres(look.above));
  format.setBottomMargin(millimetres(look.below));
  QTextCursor(block).mergeBlockFormat(format);
  for_each_stretch(block, [&](QTextCursor& cursor, QTextCharFormat text) {
    text.clearProperty(QTextFormat::FontSizeAdjustment);
    text.setFontPointSize(look.size);
    text.setFontWeight(QFont::Bold);
    text.setForeground(heading_colour);
    cursor.setCharFormat(text);
  });
}

/// In millimetres.
double gap_below(const QTextBlock& block) {
  const QTextTable* table = QTextCursor(block).currentTable();
  if (table && table->rows() > 1) return 0;
  if (block.textList()) return 0.7;
  return is_picture(block) ? 1.2 : 2;
}

QTextBlockFormat paragraph_format(const QTextBlock& block) {
  QTextBlockFormat format;
  format.setTopMargin(0);
  format.setBottomMargin(millimetres(gap_below(block)));
  const bool alone = QTextCursor(block).currentTable() == nullptr;
  if (!is_picture(block))
    format.setLineHeight(112, QTextBlockFormat::ProportionalHeight);
  else if (alone)
    format.setAlignment(Qt::AlignHCenter);
  return format;
}

void style_paragraph(const QTextBlock& block) {
  QTextCursor(block).mergeBlockFormat(paragraph_format(block));
  for_each_stretch(block, [](QTextCursor& cursor, const QTextCharFormat& text) {
    if (!text.isAnchor() && !text.fontFixedPitch()) return;
    QTextCharFormat look;
    look.setFontPointSize(body_size);
    look.setForeground(text.isAnchor() ? heading_colour : QColor(Qt::black));
    cursor.mergeCharFormat(look);
  });
}

// Pictures.

void place_picture(QTextCursor& cursor, QTextImageFormat format, Pictures& pictures) {
  const auto [image, width] = pictures.take(format.name());
  cursor.document()->addResource(QTextDocument::ImageResource, QUrl(format.name()), image);
  format.setWidth(millimetres(width));
  format.setHeight(millimetres(width * image.height() / image.width()));
  cursor.setCharFormat(format);
}

void place_pictures(const QTextBlock& block, Pictures& pictures) {
  for_each_stretch(block, [&](QTextCursor& cursor, const QTextCharFormat& format) {
    if (format.isImageFormat()) place_picture(cursor, format.toImageFormat(), pictures);
  });
}

}  // namespace

std::unique_ptr<QTextDocument> typeset(const Manuscript& manuscript, Pictures& pictures) {
  auto document = std::make_unique<QTextDocument>();
  QFont font = document->defaultFont();
  font.setPointSizeF(body_size);
  document->setDefaultFont(font);
  document->setDocumentMargin(0);
  insert_all(*document, manuscript.passages);
  for (QTextBlock block = document->begin(); block != document->end(); block = block.next()) {
    block.blockFormat().headingLevel() > 0 ? style_heading(block) : style_paragraph(block);
    place_pictures(block, pictures);
  }
  return document;
}

}  // namespace sdk
