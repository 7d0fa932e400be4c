// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The about box and the help command.

#include "ui/about.hpp"

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

using enum AboutControl;

constexpr AboutControl closing_controls[] = {Picture, Label2, lblVersion, lblCopyright};

class AboutBox : public testing::Test {
 protected:
  std::string text(AboutControl control) const { return w.about().text(control); }
  void open() { w.click(Control::Command5); }
  void switch_to_english() { w.preview_key(key::f1); }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(AboutBox, IsMadeAtTheStartAndNotShown) {
  EXPECT_TRUE(w.about().exists());
  EXPECT_FALSE(w.about().shown());
  EXPECT_EQ(text(Label2), "Auteur");
}

TEST_F(AboutBox, TellsWhoMadeTheGameInFrench) {
  open();
  EXPECT_TRUE(w.about().shown());
  EXPECT_EQ(text(Picture), "Japonaise au chapeau par l'équipe SuDoKu");
  EXPECT_EQ(text(Label2), "Auteur");
  EXPECT_EQ(text(Label1), "l'équipe SuDoKu");
  EXPECT_EQ(text(lblVersion), globals.TitreFenetre);
  EXPECT_EQ(text(lblCopyright), "Copyright © l'équipe SuDoKu 2026");
}

TEST_F(AboutBox, TellsWhoMadeTheGameInEnglish) {
  switch_to_english();
  open();
  EXPECT_EQ(text(Picture), "Japonese women with a hat by the SuDoKu team");
  EXPECT_EQ(text(Label2), "Author");
  EXPECT_EQ(text(Label1), "the SuDoKu team");
  EXPECT_EQ(text(lblVersion), globals.TitreFenetre);
  EXPECT_EQ(text(lblCopyright), "Copyright © the SuDoKu team 2026");
}

TEST_F(AboutBox, ChangesNothingInTheGame) {
  switch_to_english();
  const std::string before = dump(w);
  open();
  w.click_about(Label1);
  w.close_about();
  switch_to_english();  // the box exists again
  EXPECT_EQ(difference(before, dump(w)), "");
}

TEST_F(AboutBox, TakesTheYearAtEachOpening) {
  open();
  w.close_about();
  desktop.clock_year = 2031;
  open();
  EXPECT_EQ(text(lblCopyright), "Copyright © l'équipe SuDoKu 2031");
}

TEST_F(AboutBox, TakesTheYearOfTheOpeningAlsoWhenItExistedBefore) {
  desktop.clock_year = 2027;
  open();
  EXPECT_EQ(text(lblCopyright), "Copyright © l'équipe SuDoKu 2027");
}

TEST_F(AboutBox, WritesTheYearInFourDigits) {
  desktop.clock_year = 987;
  open();
  EXPECT_EQ(text(lblCopyright), "Copyright © l'équipe SuDoKu 0987");
}

TEST_F(AboutBox, ForgetsItsAuthorCaptionWhenItCloses) {
  open();
  w.close_about();
  EXPECT_FALSE(w.about().exists());
  open();
  EXPECT_EQ(text(Label2), "Auteur :");
}

TEST_F(AboutBox, SaysAuteurInEnglishToo) {
  switch_to_english();
  open();
  w.close_about();
  open();
  EXPECT_EQ(text(Label2), "Auteur :");
  EXPECT_EQ(text(Label1), "the SuDoKu team");
}

TEST_F(AboutBox, IsMadeAnewBySwitchingTheLanguage) {
  open();
  w.close_about();
  switch_to_english();
  EXPECT_TRUE(w.about().exists());
  EXPECT_FALSE(w.about().shown());
  open();
  EXPECT_EQ(text(Label2), "Author");
}

TEST_F(AboutBox, ThatIsOpenIsCaptionedBySwitchingTheLanguage) {
  open();
  w.close_about();
  open();
  ASSERT_EQ(text(Label2), "Auteur :");
  w.preview_key(key::f2);
  EXPECT_EQ(text(Label2), "Auteur");
  EXPECT_TRUE(w.about().shown());
}

TEST_F(AboutBox, ClosesAtAClickOnAnyControlButTheLink) {
  for (const AboutControl control : closing_controls) {
    open();
    game.forget();
    w.click_about(control);
    EXPECT_FALSE(w.about().exists());
    EXPECT_TRUE(desktop.opened.empty());
  }
}

TEST_F(AboutBox, ClosesAtAKeyOrAMouseButton) {
  open();
  game.forget();
  w.close_about();
  EXPECT_FALSE(w.about().exists());
}

TEST_F(AboutBox, OpensThePageAndStays) {
  open();
  game.forget();
  w.click_about(Label1);
  EXPECT_EQ(desktop.opened, Lines{page_address});
  EXPECT_TRUE(w.about().shown());
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(AboutBox, StaysAsItIsWhenThePageCannotBeOpened) {
  desktop.opening_works = false;
  open();
  const std::string before = dump(w);
  game.forget();
  w.click_about(Label1);
  EXPECT_EQ(desktop.opened, Lines{page_address});
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(game.repaints.empty());
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(desktop.errors.empty());
}

TEST_F(AboutBox, TakesNoEventWhileItIsNotShown) {
  w.close_about();
  for (const AboutControlRow& row : about_controls) w.click_about(row.control);
  EXPECT_TRUE(w.about().exists());
  EXPECT_TRUE(game.repaints.empty());
  EXPECT_TRUE(desktop.opened.empty());
}

TEST_F(AboutBox, IsNotShownByAFreshStart) {
  open();
  EXPECT_FALSE(Game().window.about().shown());
}

class Help : public AboutBox {
 protected:
  std::string document(const char* name) { return (desktop.program_folder() / name).string(); }
  void provide(const char* name) { write_file(document(name), "%PDF"); }
  void expect_nothing_happens_but(const Lines& opened) {
    const std::string before = dump(w);
    game.forget();
    w.click(Control::aide);
    EXPECT_EQ(desktop.opened, opened);
    EXPECT_EQ(difference(before, dump(w)), "");
    EXPECT_TRUE(game.repaints.empty());
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_TRUE(desktop.errors.empty());
  }
};

TEST_F(Help, OpensTheGuideOfTheLanguageBesideTheProgram) {
  provide("Sudoku_Fr.pdf");
  provide("Sudoku_En.pdf");
  expect_nothing_happens_but({document("Sudoku_Fr.pdf")});
  switch_to_english();
  expect_nothing_happens_but({document("Sudoku_En.pdf")});
}

TEST_F(Help, OpensTheFrenchGuideForAnyLanguageButEn) {
  provide("Sudoku_Fr.pdf");
  provide("Sudoku_En.pdf");
  for (const char* language : {"", "en", "De"}) {
    globals.Langue = language;
    expect_nothing_happens_but({document("Sudoku_Fr.pdf")});
  }
}

TEST_F(Help, DoesNothingWithoutTheGuide) {
  provide("Sudoku_En.pdf");
  expect_nothing_happens_but({});
}

TEST_F(Help, DoesNothingWithoutAViewer) {
  provide("Sudoku_Fr.pdf");
  desktop.opening_works = false;
  expect_nothing_happens_but({document("Sudoku_Fr.pdf")});
}

TEST_F(Help, DoesNothingWhenTheFolderOfTheProgramIsUnknown) {
  desktop.has_program_folder = false;
  expect_nothing_happens_but({});
}

TEST_F(Help, AloneDrawsTheBoxLinesAgain) {
  for (const ControlRow& row : all_controls)
    if (row.control != Control::aide) w.focus_lost(row.control);
  EXPECT_TRUE(game.repaints.empty());
}

TEST(PlatformYear, IsTheClocksYear) {
  FakeDesktop desktop;
  EXPECT_GE(desktop.PlatformDesktop::year(), 2024);
  EXPECT_LE(desktop.PlatformDesktop::year(), 2200);
}

}  // namespace
}  // namespace sdk::test
