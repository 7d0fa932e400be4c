// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The printed page.

#include "ui/printing.hpp"

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

constexpr float grid = 7020;

/// The eight lines around and in the grid whose top left corner is (l, t).
std::vector<LineDrawing> expected_lines(float l, float t) {
  const float r = l + grid, b = t + grid;
  return {{15, l, t + 2340, r, t + 2340},
          {15, l, t + 4680, r, t + 4680},
          {15, l + 2340, t, l + 2340, b},
          {15, l + 4680, b, l + 4680, t},
          {15, l, t, r, t},
          {15, r, t, r, b},
          {15, r, b, l, b},
          {15, l, b, l, t}};
}

Page page_with(const std::vector<DisplayCell>& cells, float x, float y, const std::string& credit) {
  Page page{TextDrawing{x, y - 600, "Arial", 14, program_title},
            PictureDrawing{x, y, grid, grid, cells}};
  for (const LineDrawing& line : expected_lines(x - 10, y - 10)) page.emplace_back(line);
  page.push_back(TextDrawing{x, y + grid + 100, "Arial", 8, credit});
  return page;
}

class Printing : public testing::Test {
 protected:
  Page expected_page(float x, float y, const std::string& credit) const {
    return page_with(w.MSF.cells(), x, y, credit);
  }
  float window_height() const { return w.layout().window.height; }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(Printing, CentresThePuzzleOnPaperWiderThanTheWindow) {
  desktop.paper = {11906, 16838};
  w.click(Control::Command4);
  const float x = (11906 - 10035) / 2.f;
  const float y = (16838 - window_height()) / 2.f;
  ASSERT_EQ(desktop.prints.size(), 1u);
  EXPECT_EQ(desktop.prints[0], expected_page(x, y, " proposé par l'équipe SuDoKu"));
}

TEST_F(Printing, StartsAt1000OnPaperNoWiderThanTheWindow) {
  for (const float width : {10035.f, 10034.f, 5000.f}) {
    game.forget();
    desktop.paper = {width, 16838};
    w.click(Control::Command4);
    const float y = (16838 - window_height()) / 2.f;
    ASSERT_EQ(desktop.prints.size(), 1u);
    EXPECT_EQ(desktop.prints[0], expected_page(1000, y, " proposé par l'équipe SuDoKu")) << width;
  }
}

TEST_F(Printing, StartsAt1000OnA4PaperWhileTheCandidatesAreShown) {
  w.check(Control::Check2, true);
  w.click(Control::Command4);
  const float y = (16838 - window_height()) / 2.f;
  EXPECT_EQ(desktop.prints.at(0), expected_page(1000, y, " proposé par l'équipe SuDoKu"));
}

TEST_F(Printing, PrintsTheCreditInTheCurrentLanguageAndThePlainTitle) {
  w.preview_key(key::f1);
  w.set_title("/home/player/puzzle.sdk");
  w.click(Control::Command4);
  const Page& page = desktop.prints.at(0);
  EXPECT_EQ(std::get<TextDrawing>(page.front()).text, program_title);
  EXPECT_EQ(std::get<TextDrawing>(page.back()).text, " proposed by the SuDoKu team");
}

TEST_F(Printing, KeepsThePictureOfTheMomentInThePage) {
  game.draw(
      "53.......\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  w.click(Control::Command4);
  const std::vector<DisplayCell> shown = w.MSF.cells();
  w.MSF.set_text(0, 0, "9");
  const auto picture = std::get<PictureDrawing>(desktop.prints.at(0).at(1));
  EXPECT_EQ(picture.cells, shown);
  EXPECT_EQ(picture.cells.at(1).text, "3");
}

TEST_F(Printing, UnderlinesWhatIsUnderlinedOnScreen) {
  game.draw(
      "5........\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  game.select(1, 9);
  game.press('5');
  w.click(Control::Command4);
  const auto picture = [&] { return std::get<PictureDrawing>(desktop.prints.back().at(1)); };
  EXPECT_TRUE(picture().cells.at(8).is_wrong());
  EXPECT_FALSE(picture().cells.at(0).is_wrong());
  w.MSF.set_text(0, 0, "4");
  w.click(Control::Command4);
  EXPECT_FALSE(picture().cells.at(8).is_wrong());
}

TEST_F(Printing, ChangesNothing) {
  const std::string before = dump(w);
  w.click(Control::Command4);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST(BoxLineDrawing, PutsTwoHorizontalThenTwoVerticalLines) {
  const auto lines = box_lines({10, 20, 300, 600}, 7);
  const std::vector<LineDrawing> expected{{7, 10, 220, 310, 220},
                                          {7, 10, 420, 310, 420},
                                          {7, 110, 20, 110, 620},
                                          {7, 210, 20, 210, 620}};
  EXPECT_EQ(lines, expected);
}

}  // namespace
}  // namespace sdk::test
