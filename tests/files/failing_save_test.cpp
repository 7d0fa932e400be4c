// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The save button when the disk does not take the file.

#include <gtest/gtest.h>

#include "tests/files/failing_steps.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class FailingSave : public testing::Test {
 protected:
  FailingSave() { game.draw(complete_grid); }

  /// Presses the save button, chooses the file, and returns the exit status.
  int status_of_saving(const fs::path& target) {
    desktop.chosen = {target.string()};
    try {
      w.click(Control::sauve);
    } catch (const ProgramEnd& end) {
      return end.status;
    }
    return -1;
  }

  std::string rescue() { return (desktop.data_folder() / "SuDoKu-1.sdk").string(); }

  void expect_rescued(const fs::path& target, const std::string& reason) {
    const std::string text = "SuDoKu doit s'arrêter (" + target.string() + ": " + reason +
                             "). La grille a été sauvée dans " + rescue();
    EXPECT_EQ(desktop.boxes, (std::vector{Box{text, Icon::critical, Buttons::ok, program_title}}));
    EXPECT_EQ(desktop.errors, Lines{text});
    EXPECT_EQ(bytes_of(rescue()).substr(0, 40), " 1 2 3 4 5 6 7 8 9\r\n 4 5 6 7 8 9 1 2 3\r\n");
    EXPECT_EQ(bytes_of(rescue()).size(), 180u);
    desktop.forget();
    fs::remove(rescue());
  }

  ScratchFolder folder;
  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
  const fs::path file = folder / "my puzzle.sdk";
};

TEST_F(FailingSave, KeepsTheOldFileRescuesTheGridAndNamesTheFile) {
  write_file(file, "the old one");
  for (const FailsAt step : {FailsAt::create, FailsAt::write, FailsAt::rename}) {
    FailingSteps steps(step, folder.path(), std::errc::io_error);
    desktop.save_steps = &steps;
    EXPECT_EQ(status_of_saving(file), 1);
    expect_rescued(file, "Input/output error");
    EXPECT_EQ(bytes_of(file), "the old one");
    EXPECT_EQ(folder.names(), "my puzzle.sdk");
  }
}

TEST_F(FailingSave, ToAFullDeviceRescuesTheGrid) {
  EXPECT_EQ(status_of_saving("/dev/full"), 1);
  expect_rescued("/dev/full", "No space left on device");
}

TEST_F(FailingSave, ToAFolderRescuesTheGrid) {
  EXPECT_EQ(status_of_saving(folder.path()), 1);
  expect_rescued(folder.path(), "Is a directory");
}

TEST_F(FailingSave, SaysSoWhenTheGridCannotBeRescuedEither) {
  FailingSteps steps(FailsAt::write, desktop.data_folder());
  desktop.save_steps = &steps;
  const fs::path target = desktop.data_folder() / "a.sdk";
  EXPECT_EQ(status_of_saving(target), 1);
  ASSERT_EQ(desktop.errors.size(), 1u);
  EXPECT_EQ(desktop.errors[0],
            "SuDoKu doit s'arrêter (" + target.string() +
                ": No space left on device). La grille n'a pas pu être sauvée (" + rescue() +
                ": No space left on device)");
  EXPECT_TRUE(fs::is_empty(desktop.data_folder()));
}

TEST_F(FailingSave, OfAnEmptyGridRescuesNothing) {
  std::string empty;
  for (int i = 0; i < 9; ++i) empty += ".........\n";
  game.draw(empty);
  EXPECT_EQ(status_of_saving("/dev/full"), 1);
  EXPECT_EQ(desktop.errors, Lines{"SuDoKu doit s'arrêter (/dev/full: No space left on device)"});
  EXPECT_TRUE(fs::is_empty(desktop.data_folder()));
}

}  // namespace
}  // namespace sdk::test
