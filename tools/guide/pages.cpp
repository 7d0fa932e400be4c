// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/pages.hpp"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDateTime>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include "tools/guide/errors.hpp"

namespace sdk {

namespace {

constexpr int dots_per_inch = 600;
constexpr double margin = 17, footer_height = 8;  // in millimetres
constexpr double footer_size = 8;                 // in points

/// A whole number of dots, so that pages begin where dots do.
int dots(double length) { return qRound(length * dots_per_inch / 25.4); }

void set_up(QPdfWriter& writer, const QString& title) {
  writer.setTitle(title);
  writer.setCreator("SuDoKu");
  writer.setResolution(dots_per_inch);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
}

int page_at(const QTextDocument& document, double height) {
  return static_cast<int>(height / document.pageSize().height());
}

/// Empty paragraphs before tables are not laid out.
bool is_laid_out(const QTextBlock& block) { return block.length() > 1; }

double top_of(const QTextBlock& block) {
  return block.document()->documentLayout()->blockBoundingRect(block).top();
}

/// The page on which a line of a paragraph ends.
int page_of_line(const QTextBlock& block, int line) {
  return page_at(*block.document(), top_of(block) + block.layout()->lineAt(line).rect().bottom());
}

int first_page(const QTextBlock& block) { return page_of_line(block, 0); }

int last_page(const QTextBlock& block) {
  return page_of_line(block, block.layout()->lineCount() - 1);
}

QTextBlock next_laid_out(QTextBlock block) {
  do block = block.next();
  while (block.isValid() && !is_laid_out(block));
  return block;
}

/// The table that begins with the paragraph; null when none does.
QTextTable* table_at(const QTextBlock& block) {
  QTextTable* table = QTextCursor(block).currentTable();
  return table && table->firstPosition() == block.position() ? table : nullptr;
}

bool is_on_one_page(const QTextTable& table) {
  const QTextBlock first = table.firstCursorPosition().block();
  const QTextBlock after = table.lastCursorPosition().block().next();
  for (QTextBlock block = first; block != after; block = block.next())
    if (is_laid_out(block) && last_page(block) != first_page(first)) return false;
  return true;
}

/// What follows the heading begins on its page; a table stands there whole.
bool is_followed(const QTextBlock& heading) {
  const QTextBlock next = next_laid_out(heading);
  if (!next.isValid()) return true;
  if (const QTextTable* table = table_at(next); table && !is_on_one_page(*table)) return false;
  return first_page(heading) == first_page(next);
}

void break_before(const QTextBlock& block) {
  QTextBlockFormat format;
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QTextCursor(block).mergeBlockFormat(format);
}

void break_before(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  table.setFormat(format);
}

}  // namespace

// From the front to the back, since every new page moves what comes after it.
void break_pages(const QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    document.documentLayout()->pageCount();  // lays out what the last change has moved
    if (QTextTable* table = table_at(block); table && !is_on_one_page(*table))
      break_before(*table);
    else if (block.blockFormat().headingLevel() > 0 && !is_followed(block))
      break_before(block);
  }
}

namespace {

/// The end of a page runs through a line.
bool is_cut(const QTextBlock& block) {
  for (int line = 0; line < block.layout()->lineCount(); ++line) {
    const double top = top_of(block) + block.layout()->lineAt(line).rect().top();
    if (page_at(*block.document(), top) != page_of_line(block, line)) return true;
  }
  return false;
}

void check_lines(const QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    if (is_laid_out(block) && is_cut(block))
      throw GuideError("the end of a page cuts \"" + block.text() + '"');
}

void paint_page(QPainter& painter, const QTextDocument& document, int page) {
  const QSizeF size = document.pageSize();
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  const QRectF area(QPointF(0, page * size.height()), size);
  context.clip = area.adjusted(0, 1, 0, -1);  // nothing that only touches the page
  painter.save();
  painter.translate(0, -area.top());
  painter.setClipRect(area);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

void paint_number(QPainter& painter, const QTextDocument& document, int page) {
  QFont font = document.defaultFont();
  font.setPointSizeF(footer_size);
  painter.setFont(font);
  painter.setPen(Qt::darkGray);
  const QRectF foot(0, document.pageSize().height(), document.pageSize().width(),
                    dots(footer_height));
  painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, QString::number(page + 1));
}

void paint(QPdfWriter& writer, const QTextDocument& document) {
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::LosslessImageRendering);
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    paint_page(painter, document, page);
    paint_number(painter, document, page);
  }
}

}  // namespace

QByteArray pdf_of(QTextDocument& document, const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  set_up(writer, title);
  document.documentLayout()->setPaintDevice(&writer);
  document.setPageSize(QSizeF(writer.width(), writer.height() - dots(footer_height)));
  break_pages(document);
  check_lines(document);
  paint(writer, document);
  return bytes;
}

void set_creation_date(QByteArray& pdf, qint64 seconds) {
  const QByteArray key = "/CreationDate (D:";
  const QByteArray date =
      QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString("yyyyMMddHHmmss").toLatin1();
  const qsizetype at = pdf.indexOf(key);
  if (at < 0) throw GuideError("the document has no date of creation");
  pdf.replace(at + key.size(), date.size(), date);
}

}  // namespace sdk
