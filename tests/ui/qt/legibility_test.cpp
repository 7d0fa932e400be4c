// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How well the cells can be read, also by players who do not tell red from green.

#include <QFile>
#include <QPainter>

#include "pas_a_pas/view.hpp"
#include "tests/ui/qt/play.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/contrast.hpp"
#include "ui/qt/digit_frame_painter.hpp"

namespace sdk::test {

namespace {

/// A text on a background that one of the grids can show.
struct Pair {
  QString cell;
  Colour back;
  QString text_name;
  Colour text;
  int points;
};

struct NamedColour {
  const char* name;
  Colour colour;
};

constexpr NamedColour puzzle_backgrounds[] = {
    {"no given", colour::white},
    {"given of level 0", colour::level[0]},
    {"given of level 1", colour::level[1]},
    {"given of level 2", colour::level[2]},
    {"given of level 3", colour::level[3]},
    {"given of level 4", colour::level[4]},
    {"given of a file", colour::from_file},
};
constexpr NamedColour puzzle_texts[] = {
    {"black", colour::black}, {"green", colour::green}, {"red", colour::red}};

struct NamedMark {
  const char* name;
  Mark mark;
};

constexpr NamedMark marks[] = {
    {"candidates", Mark::none},
    {"candidates, mark 3", Mark::removed},
    {"candidates, mark 4", Mark::support},
    {"candidates, mark 5", Mark::value},
    {"candidates, mark 6", Mark::second},
};

/// What marque_case makes of an empty cell of `MSR`.
DisplayCell marked(MainWindow& window, Mark mark) {
  window.MSR.set_text(0, 0, " ");
  marque_case(1, 1, mark);
  return window.MSR.cell(0, 0);
}

void add_puzzle_pairs(QList<Pair>& pairs) {
  for (const NamedColour& back : puzzle_backgrounds)
    for (const NamedColour& text : puzzle_texts)
      pairs << Pair{back.name, back.colour, text.name, text.colour, puzzle_font_size};
}

/// A new round of a hint turns texts black and leaves the marks.
void add_candidate_pairs(QList<Pair>& pairs, MainWindow& window) {
  for (const auto& [name, mark] : marks) {
    const DisplayCell cell = marked(window, mark);
    if (cell.text_colour != colour::black)
      pairs << Pair{name, cell.back_colour, "green", cell.text_colour, candidates_font_size};
    pairs << Pair{name, cell.back_colour, "black", colour::black, candidates_font_size};
  }
}

QList<Pair> all_pairs(MainWindow& window) {
  QList<Pair> pairs;
  add_puzzle_pairs(pairs);
  add_candidate_pairs(pairs, window);
  return pairs;
}

DisplayCell cell_of(const Pair& pair) {
  return {
      .text = "8", .text_colour = pair.text, .back_colour = pair.back, .font_size = pair.points};
}

DisplayCell selected(DisplayCell cell) {
  cell.back_colour = selected_background(cell.back_colour);
  return cell;
}

double drawn_contrast(const DisplayCell& cell) {
  return contrast(drawn_text_colour(cell, 0), to_qcolor(cell.back_colour));
}

/// By the Web Content Accessibility Guidelines.
double asked_contrast(const DisplayCell& cell) { return cell.font_size >= 18 ? 3 : 4.5; }

QString two_places(double ratio) { return QString::number(ratio, 'f', 2); }

QString hex(const QColor& colour) { return colour.name().mid(1).toUpper(); }

QString table_row(const Pair& pair) {
  const DisplayCell plain = cell_of(pair), tinted = selected(plain);
  const QColor back = to_qcolor(pair.back), text = to_qcolor(pair.text);
  return "| " +
         QStringList{pair.cell,
                     hex(back),
                     pair.text_name,
                     QString::number(pair.points),
                     two_places(contrast(text, back)),
                     hex(drawn_text_colour(plain, 0)),
                     two_places(drawn_contrast(plain)),
                     hex(to_qcolor(tinted.back_colour)),
                     hex(drawn_text_colour(tinted, 0)),
                     two_places(drawn_contrast(tinted))}
             .join(" | ") +
         " |\n";
}

constexpr std::pair<DigitFrame, const char*> frames[] = {{DigitFrame::clash, "clash"},
                                                         {DigitFrame::equal, "equal digit"}};

QString frame_row(const NamedColour& back, DigitFrame frame, const char* name) {
  const QColor plain = to_qcolor(back.colour), drawn = frame_colour(frame);
  const QColor tinted = to_qcolor(selected_background(back.colour));
  return "| " +
         QStringList{back.name,
                     hex(plain),
                     name,
                     hex(drawn),
                     two_places(contrast(drawn, plain)),
                     hex(tinted),
                     two_places(contrast(drawn, tinted))}
             .join(" | ") +
         " |\n";
}

QString read(const char* file) {
  QFile page(file);
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QImage painted(const DisplayCell& cell) {
  QImage image(cell_side, cell_side, QImage::Format_RGB32);
  QPainter painter(&image);
  paint_cell(painter, image.rect(), cell, puzzle_font_size);
  return image;
}

/// Whether anything stands out between the digit and the lower edge of a cell.
bool is_underlined(const QImage& cell) {
  for (int y = 41; y < 47; ++y)
    for (int x = 10; x < 42; ++x)
      if (contrast(cell.pixelColor(x, y), cell.pixelColor(4, 4)) > 2) return true;
  return false;
}

bool has_colour(const QImage& image, const QColor& colour) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) return true;
  return false;
}

}  // namespace

class LegibilityTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { play_.emplace(); }
  void cleanup() { play_.reset(); }

  void contrast_is_that_of_the_guidelines() {
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    QCOMPARE(two_places(contrast(QColor(0x77, 0x77, 0x77), Qt::white)), "4.48");
    QCOMPARE(two_places(contrast(Qt::white, QColor(255, 0, 0))), "4.00");
  }

  void a_colour_that_can_be_read_stays_as_it_is() {
    QCOMPARE(legible(QColor(255, 0, 0), Qt::white, 3), QColor(255, 0, 0));
    QCOMPARE(legible(QColor(0, 128, 0), Qt::white, 4.5), QColor(0, 128, 0));
  }

  void a_faint_colour_is_made_just_dark_or_light_enough() {
    const QColor darker = legible(QColor(255, 0, 0), QColor(255, 192, 192), 3);
    QVERIFY(contrast(darker, QColor(255, 192, 192)) >= 3);
    QVERIFY(contrast(darker, QColor(255, 192, 192)) < 3.2);
    const QColor lighter = legible(QColor(0, 0, 255), QColor(45, 45, 48), 4.5);
    QVERIFY(contrast(lighter, QColor(45, 45, 48)) >= 4.5);
    QVERIFY(lighter.blue() > lighter.red());
  }

  void text_is_large_from_18_points_on() {
    DisplayCell cell{.text = "8", .text_colour = colour::red, .back_colour = colour::from_file};
    for (const auto& [points, asked] : {std::pair(18, 3.0), {17, 4.5}}) {
      cell.font_size = points;
      QVERIFY(drawn_contrast(cell) >= asked && drawn_contrast(cell) < asked + 1);
    }
  }

  void every_pair_of_the_grids_can_be_read() {
    for (const Pair& pair : all_pairs(play_->window))
      for (const DisplayCell& cell : {cell_of(pair), selected(cell_of(pair))})
        QVERIFY2(drawn_contrast(cell) >= asked_contrast(cell), qPrintable(table_row(pair)));
  }

  void a_large_text_is_painted_in_the_colour_that_can_be_read() {
    for (const Pair& pair : all_pairs(play_->window)) {
      const DisplayCell cell = cell_of(pair);
      if (pair.points == puzzle_font_size)
        QVERIFY2(has_colour(painted(cell), drawn_text_colour(cell, 0)), qPrintable(pair.cell));
    }
  }

  void the_page_on_contrast_shows_what_is_measured() {
    QString table;
    for (const Pair& pair : all_pairs(play_->window)) table += table_row(pair);
    if (!read(CONTRAST_PAGE).contains("|\n" + table + "\n"))
      QFAIL(qPrintable("docs/contrast.md should have this table:\n" + table));
  }

  void every_frame_stands_out_from_every_background() {
    for (const auto& [frame, name] : frames)
      for (const NamedColour& back : puzzle_backgrounds)
        for (const Colour shown : {back.colour, selected_background(back.colour)})
          QVERIFY2(contrast(frame_colour(frame), to_qcolor(shown)) >= 3,
                   qPrintable(frame_row(back, frame, name)));
  }

  void the_page_on_contrast_shows_the_frames() {
    QString table;
    for (const NamedColour& back : puzzle_backgrounds)
      for (const auto& [frame, name] : frames) table += frame_row(back, frame, name);
    if (!read(CONTRAST_PAGE).contains("|\n" + table + "\n"))
      QFAIL(qPrintable("docs/contrast.md should have this table of frames:\n" + table));
  }

  void a_wrong_value_is_underlined_on_every_background() {
    for (const NamedColour& back : puzzle_backgrounds)
      for (const NamedColour& text : puzzle_texts) {
        const bool wrong = text.colour == colour::red;
        const DisplayCell cell{
            .text = "8", .text_colour = text.colour, .back_colour = back.colour, .wrong = wrong};
        QCOMPARE(is_underlined(painted(cell)), wrong);
      }
  }

  void an_empty_cell_is_never_underlined() {
    QVERIFY(!is_underlined(painted({.text = " ", .text_colour = colour::red, .wrong = true})));
  }

  void a_clash_is_underlined_on_screen_until_it_is_gone() {
    play_->draw(
        "12.......\n.........\n.........\n.........\n.........\n"
        ".........\n.........\n.........\n.........");
    play_->press(Qt::Key_End);
    play_->type("2");
    QVERIFY(is_underlined(on_screen(1, 9)));
    QVERIFY(!is_underlined(on_screen(1, 2)));
    play_->type("3");
    QVERIFY(!is_underlined(on_screen(1, 9)));
  }

  void exactly_the_values_that_differ_from_the_solution_are_underlined_by_the_button() {
    const auto [row, column] = first_empty_cell();
    play_->click_cell(row, column);
    const char wrong = solution(row, column) == '9' ? '1' : '9';
    play_->type(std::string(1, wrong).c_str());
    play_->click("Command7");
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c)
        QCOMPARE(is_underlined(on_screen(r, c)), r == row && c == column);
  }

  void a_wrong_value_is_underlined_on_paper() {
    play_->window.MSF.make_current(8, 8);
    play_->window.MSF.set_text("7");
    play_->window.MSF.set_verdict(colour::red);
    QImage page(9 * cell_side, 9 * cell_side, QImage::Format_RGB32);
    QPainter painter(&page);
    paint_puzzle(painter, play_->window.MSF.cells());
    QVERIFY(is_underlined(page.copy(8 * cell_side, 8 * cell_side, cell_side, cell_side)));
    QVERIFY(!is_underlined(page.copy(0, 0, cell_side, cell_side)));
  }

 private:
  struct Place {
    int row, column;
  };

  Place first_empty_cell() {
    int number = 0;
    while (play_->window.MSF.is_filled(number / 9, number % 9)) ++number;
    return {number / 9 + 1, number % 9 + 1};
  }

  char solution(int row, int column) {
    return play_->window.ChaineSolution.at(static_cast<std::size_t>((row - 1) * 9 + column - 1));
  }

  /// A cell of the puzzle, seen without the border of the current one.
  QImage on_screen(int row, int column) {
    play_->window.MSF.set_marks_current(false);
    play_->settle();
    const QImage image = play_->find("MSF").grab().toImage().copy(
        (column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side);
    play_->window.MSF.set_marks_current(true);
    return image;
  }

  std::optional<Play> play_;
};

}  // namespace sdk::test

SUDOKU_WINDOW_TEST(sdk::test::LegibilityTest)
#include "legibility_test.moc"
