// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/printing.hpp"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/page_painter.hpp"

namespace sdk::test {

namespace {

constexpr PageSize a4{11906, 16838};
constexpr double twips_per_pixel_here = 10;

/// The page at a tenth of a pixel a twip.
QImage painted(const Page& page) {
  QImage image(1191, 1684, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(1 / twips_per_pixel_here, 1 / twips_per_pixel_here);
  paint_drawings(painter, page);
  return image;
}

QColor at(const QImage& image, double x_twips, double y_twips) {
  return image.pixelColor(static_cast<int>(x_twips / twips_per_pixel_here),
                          static_cast<int>(y_twips / twips_per_pixel_here));
}

/// Around all ink of the page, in twips.
QRect ink(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) != Qt::white) box |= QRect(x * 10, y * 10, 10, 10);
  return box;
}

/// A sheet of paper that can be looked at; it has 144 pixels an inch.
class Paper : public QPdfWriter {
 public:
  Paper() : QPdfWriter(QString()), image_(600, 600, QImage::Format_RGB32) {
    setResolution(144);
    image_.fill(Qt::white);
  }
  const QImage& image() const { return image_; }

 protected:
  QPaintDevice* redirected(QPoint*) const override { return &image_; }

 private:
  mutable QImage image_;
};

bool has_ink(const QImage& image, const QRect& twips) {
  for (int y = twips.top(); y < twips.bottom(); y += 10)
    for (int x = twips.left(); x < twips.right(); x += 10)
      if (at(image, x, y).lightness() < 100) return true;
  return false;
}

}  // namespace

class PrintingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void the_page_shows_title_puzzle_lines_and_credit() {
    const QImage image = painted(page());
    const double left = (a4.width - 10035) / 2, top = (a4.height - 10170) / 2;
    QVERIFY(has_ink(image, QRect(left, top - 600, 3000, 400)));
    QVERIFY(has_ink(image, QRect(left, top + 7020 + 100, 3000, 200)));
    QVERIFY(!has_ink(image, QRect(left + 7100, top, 2000, 7000)));
    for (int r = 0; r < 9; ++r)
      for (int c = 0; c < 9; ++c) {
        const DisplayCell& cell = play_->window.MSF.cell(r, c);
        const QColor expected = to_qcolor(cell.back_colour);
        QCOMPARE(at(image, left + c * 780 + 100, top + r * 780 + 100), expected);
        QCOMPARE(has_ink(image, QRect(left + c * 780 + 200, top + r * 780 + 150, 400, 500)),
                 cell.text != " ");
      }
    const auto is_black = [&](double x, double y) { return at(image, x, y).lightness() < 80; };
    QVERIFY(is_black(left - 10 + 2340, top + 400));
    QVERIFY(is_black(left + 400, top - 10 + 4680));
    QVERIFY(is_black(left - 10, top + 400));
    QVERIFY(is_black(left - 10 + 7020, top + 400));
  }

  void a_wrong_digit_changes_nothing_but_its_cell() {
    play_->draw(
        "1........\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    const QImage before = painted(page());
    play_->click_cell(1, 2);
    play_->type("1");
    QImage after = painted(page());
    QVERIFY(after != before);
    const QPoint cell(static_cast<int>((a4.width - 10035) / 2 + 780) / 10,
                      (a4.height - 10170) / 20);
    QPainter(&after).drawImage(cell, before, QRect(cell, QSize(78, 78)));
    QCOMPARE(after, before);
  }

  void texts_hang_from_their_upper_edge() {
    const QImage image = painted(page());
    int texts = 0;
    for (const Drawing& drawing : page())
      if (const auto* text = std::get_if<TextDrawing>(&drawing)) {
        const int x = static_cast<int>(text->x), y = static_cast<int>(text->y),
                  line = text->size * 20;
        QVERIFY(has_ink(image, QRect(x, y + line / 2, 2000, line / 2)));
        QVERIFY(!has_ink(image, QRect(x, y - line / 8, 2000, line / 8)));
        QVERIFY(!has_ink(image, QRect(x, y + line * 3 / 2, 2000, line / 4)));
        ++texts;
      }
    QCOMPARE(texts, 2);
  }

  void a_text_is_written_in_its_font_and_size_from_its_corner() {
    QImage expected(1191, 1684, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.scale(0.1, 0.1);
    QFont font("monospace");
    font.setPixelSize(36 * 20);
    painter.setFont(font);
    painter.drawText(QPointF(1000, 2000 + QFontMetricsF(font).ascent()), "SuDoKu");
    QCOMPARE(painted({TextDrawing{1000, 2000, "monospace", 36, "SuDoKu"}}), expected);
  }

  void a_line_has_its_width_and_square_ends() {
    QCOMPARE(ink(painted({LineDrawing{60, 1000, 2000, 3000, 2000}})), QRect(970, 1970, 2060, 60));
    QCOMPARE(ink(painted({LineDrawing{100, 500, 600, 500, 900}})), QRect(450, 550, 100, 400));
  }

  void a_twip_is_a_1440th_of_an_inch_on_paper() {
    Paper paper;
    QVERIFY(paint_page(paper, {LineDrawing{200, 1440, 2880, 4320, 2880}}));
    const QRect box = ink(paper.image());
    QCOMPARE(box, QRect(1340, 2780, 3080, 200));
  }

  void a_pdf_has_one_portrait_page() {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QVERIFY(paint_page(writer, page()));
    QVERIFY(file.data().startsWith("%PDF"));
    QCOMPARE(file.data().count("/Type /Page\n"), 1);
    QVERIFY(writer.width() < writer.height());
  }

  void a_device_that_refuses_is_reported() {
    QPdfWriter writer("/nonexistent/folder/page.pdf");
    QVERIFY(!paint_page(writer, page()));
  }

 private:
  Page page() const {
    return printed_page(a4, play_->window.layout(), play_->window.MSF, globals.TitreFenetre,
                        text_of(Message::credit));
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::PrintingTest)
#include "printing_test.moc"
