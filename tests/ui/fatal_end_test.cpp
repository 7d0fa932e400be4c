// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a failure that nobody handles ends the program.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

class FatalEnd : public testing::Test {
 protected:
  FatalEnd() { game.draw(complete_grid); }

  /// Presses the print button and returns the exit status.
  int status_of_printing() {
    try {
      w.click(Control::Command4);
    } catch (const ProgramEnd& end) {
      return end.status;
    }
    return -1;
  }

  void expect_said(const std::string& text) {
    EXPECT_EQ(desktop.errors, Lines{text});
    EXPECT_EQ(desktop.boxes, (std::vector{Box{text, Icon::critical, Buttons::ok, program_title}}));
  }

  std::string path(const std::string& name) { return (desktop.data_folder() / name).string(); }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(FatalEnd, WithoutAPrinterSavesTheGridAndSaysWhatFailedAndWhereTheGridIs) {
  desktop.has_printer = false;
  EXPECT_EQ(status_of_printing(), 1);
  expect_said("SuDoKu doit s'arrêter (printer: no printer here). La grille a été sauvée dans " +
              path("SuDoKu-1.sdk"));
  EXPECT_EQ(bytes_of(path("SuDoKu-1.sdk")).substr(0, 20), " 1 2 3 4 5 6 7 8 9\r\n");
  EXPECT_EQ(bytes_of(path("SuDoKu-1.sdk")).size(), 180u);
  EXPECT_TRUE(desktop.prints.empty());
}

TEST_F(FatalEnd, SpeaksTheCurrentLanguage) {
  w.preview_key(key::f1);
  desktop.has_printer = false;
  EXPECT_EQ(status_of_printing(), 1);
  expect_said("SuDoKu has to stop (printer: no printer here). The grid was saved in " +
              path("SuDoKu-1.sdk"));
}

TEST_F(FatalEnd, ComesWhenThePrintingItselfFails) {
  desktop.printing_works = false;
  EXPECT_EQ(status_of_printing(), 1);
  EXPECT_EQ(desktop.errors.size(), 1u);
  EXPECT_NE(desktop.errors[0].find("(printer: out of paper)"), std::string::npos);
}

TEST_F(FatalEnd, NeverOverwritesAnEarlierGrid) {
  write_file(path("SuDoKu-1.sdk"), "precious");
  desktop.has_printer = false;
  EXPECT_EQ(status_of_printing(), 1);
  EXPECT_EQ(bytes_of(path("SuDoKu-1.sdk")), "precious");
  EXPECT_EQ(bytes_of(path("SuDoKu-2.sdk")).size(), 180u);
}

TEST_F(FatalEnd, SaysSoWhenTheGridCannotBeSavedEither) {
  desktop.has_printer = false;
  desktop.has_data_folder = false;
  EXPECT_EQ(status_of_printing(), 1);
  expect_said(
      "SuDoKu doit s'arrêter (printer: no printer here). La grille n'a pas pu être sauvée "
      "(data folder: disk is read-only)");
  w.preview_key(key::f1);
  game.forget();
  EXPECT_EQ(status_of_printing(), 1);
  expect_said(
      "SuDoKu has to stop (printer: no printer here). The grid could not be saved "
      "(data folder: disk is read-only)");
}

TEST_F(FatalEnd, InsideASearchEndsItToo) {
  w.MSF.set_text(0, 0, " ");
  desktop.has_printer = false;
  desktop.at_step[1] = [&] { w.click(Control::Command4); };
  EXPECT_THROW(w.click(Control::Bouton_GO), ProgramEnd);
  EXPECT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(bytes_of(path("SuDoKu-1.sdk")).substr(0, 4), " . 2");
  EXPECT_EQ(w.searches_running, 0);
}

}  // namespace
}  // namespace sdk::test
