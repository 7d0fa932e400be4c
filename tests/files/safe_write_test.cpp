// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Saving over a file: what is kept, and what a failure leaves.

#include "files/safe_write.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "screen/errors.hpp"
#include "tests/files/failing_steps.hpp"
#include "tests/support/fake_desktop.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class SafeWrite : public testing::Test {
 protected:
  void save(const fs::path& target, std::string_view bytes) { replace_file(target, bytes, steps); }

  /// What the failure of a save says; empty when it does not fail.
  std::string fault_of(const fs::path& target, SaveSteps& with) {
    try {
      replace_file(target, "new", with);
      return "";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.object(), target.string());
      return error.what();
    }
  }
  std::string fault_of(const fs::path& target) { return fault_of(target, steps); }

  ScratchFolder folder;
  SaveSteps steps;
  const fs::path file = folder / "a.sdk";
};

TEST_F(SafeWrite, MakesANewFile) {
  save(file, std::string_view("one\0two\r\n", 9));
  EXPECT_EQ(bytes_of(file), std::string("one\0two\r\n", 9));
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(SafeWrite, GivesANewFileTheUsualRights) {
  const mode_t before = umask(027);
  save(file, "x");
  umask(before);
  EXPECT_EQ(rights_of(file), 0640u);
}

TEST_F(SafeWrite, ReplacesLongerAndShorterContents) {
  for (const std::size_t length : {0u, 2u, 3u, 5000u}) {
    write_file(file, std::string(length, 'x'));
    save(file, "new");
    EXPECT_EQ(bytes_of(file), "new") << length;
  }
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(SafeWrite, TakesAPathRelativeToTheCurrentFolder) {
  KeptFolder kept;
  fs::current_path(folder.path());
  save("b.sdk", "new");
  EXPECT_EQ(bytes_of(folder / "b.sdk"), "new");
}

TEST_F(SafeWrite, TakesNamesWithBlanksQuotesAndTheGreatestLength) {
  for (const std::string& name : {std::string("a b 'c' \"d\" $e.sdk"), std::string(255, 'n')}) {
    save(folder / name, "old");
    save(folder / name, "new");
    EXPECT_EQ(bytes_of(folder / name), "new");
  }
}

TEST_F(SafeWrite, LeavesFilesAloneThatHaveTheNameOfItsOwnNewFile) {
  write_file(folder / "SuDoKu-1.new", "precious");
  fs::create_symlink("nowhere", folder / "SuDoKu-2.new");
  write_file(file, "old");
  save(file, "new");
  EXPECT_EQ(bytes_of(file), "new");
  EXPECT_EQ(bytes_of(folder / "SuDoKu-1.new"), "precious");
  EXPECT_EQ(folder.names(), "SuDoKu-1.new SuDoKu-2.new a.sdk");
}

TEST_F(SafeWrite, ThroughALinkKeepsTheLink) {
  fs::create_directory(folder / "far");
  write_file(folder / "far/b.sdk", "old");
  fs::create_symlink("far/c.sdk", file);
  fs::create_symlink("b.sdk", folder / "far/c.sdk");
  save(file, "new");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::is_symlink(folder / "far/c.sdk"));
  EXPECT_EQ(bytes_of(folder / "far/b.sdk"), "new");
  EXPECT_FALSE(fs::is_symlink(folder / "far/b.sdk"));
}

TEST_F(SafeWrite, ThroughALinkThatLeadsNowhereMakesTheFile) {
  fs::create_symlink(folder / "b.sdk", file);
  save(file, "new");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(bytes_of(folder / "b.sdk"), "new");
}

TEST_F(SafeWrite, ThroughLinksInACircleFails) {
  fs::create_symlink("b.sdk", file);
  fs::create_symlink("a.sdk", folder / "b.sdk");
  EXPECT_EQ(fault_of(file), file.string() + ": Too many levels of symbolic links");
}

TEST_F(SafeWrite, KeepsAllNamesOfAFile) {
  write_file(file, "old and long");
  fs::create_hard_link(file, folder / "b.sdk");
  save(file, "new");
  EXPECT_EQ(bytes_of(folder / "b.sdk"), "new");
  EXPECT_EQ(fs::hard_link_count(file), 2u);
}

TEST_F(SafeWrite, KeepsTheRightsOfAFile) {
  write_file(file, "old");
  for (const unsigned rights : {0600u, 0640u, 0666u, 0755u}) {
    fs::permissions(file, fs::perms(rights));
    save(file, "new");
    EXPECT_EQ(rights_of(file), rights);
  }
}

TEST_F(SafeWrite, KeepsTheOwnerOfAFile) {
  write_file(file, "old");
  // Only root can give a file away; another player's own files keep their owner all the same.
  const bool root = geteuid() == 0;
  const uid_t owner = root ? 1234 : geteuid();
  const gid_t group = root ? 4321 : getegid();
  ASSERT_EQ(chown(file.c_str(), owner, group), 0);
  save(file, "new");
  struct stat after {};
  ASSERT_EQ(stat(file.c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, owner);
  EXPECT_EQ(after.st_gid, group);
}

TEST_F(SafeWrite, ThatFailsAtAnyStepLeavesTheOldFileAndNothingElse) {
  write_file(file, "old and long");
  for (const FailsAt step : {FailsAt::create, FailsAt::write, FailsAt::rename}) {
    FailingSteps failing(step, folder.path());
    EXPECT_EQ(fault_of(file, failing), file.string() + ": No space left on device");
    EXPECT_EQ(bytes_of(file), "old and long");
    EXPECT_EQ(folder.names(), "a.sdk");
    EXPECT_EQ(failing.writes_in_place, 0);
  }
}

TEST_F(SafeWrite, OfANewFileThatFailsLeavesNothing) {
  for (const FailsAt step : {FailsAt::create, FailsAt::write, FailsAt::rename}) {
    FailingSteps failing(step, folder.path());
    EXPECT_EQ(fault_of(file, failing), file.string() + ": No space left on device");
    EXPECT_EQ(folder.names(), "");
  }
}

TEST_F(SafeWrite, BeyondTheEndOfTheDiskLeavesTheOldFile) {
  write_file(file, "old");
  std::string fault;
  {
    const FileLimit limit(2);
    fault = fault_of(file);
  }
  EXPECT_EQ(fault, file.string() + ": File too large");
  EXPECT_EQ(bytes_of(file), "old");
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(SafeWrite, InPlaceThatFailsPutsTheOldContentBack) {
  for (const std::string old : {"", "o", "old", "old and long"}) {
    write_file(file, old);
    fs::remove(folder / "b.sdk");
    fs::create_hard_link(file, folder / "b.sdk");
    FailingSteps failing(FailsAt::in_place, folder.path());
    EXPECT_EQ(fault_of(file, failing), file.string() + ": No space left on device");
    EXPECT_EQ(bytes_of(file), old);
  }
}

TEST_F(SafeWrite, InPlaceBeyondTheEndOfTheDiskPutsTheOldContentBack) {
  write_file(file, "o");
  fs::create_hard_link(file, folder / "b.sdk");
  std::string fault;
  {
    const FileLimit limit(2);
    fault = fault_of(file);
  }
  EXPECT_EQ(fault, file.string() + ": File too large");
  EXPECT_EQ(bytes_of(folder / "b.sdk"), "o");
}

TEST_F(SafeWrite, ToAFullDeviceFails) {
  EXPECT_EQ(fault_of("/dev/full"), "/dev/full: No space left on device");
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(SafeWrite, ToADeviceWritesIntoIt) {
  save("/dev/null", "new");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(SafeWrite, ToAFolderFails) {
  fs::create_directory(file);
  EXPECT_EQ(fault_of(file), file.string() + ": Is a directory");
  EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(SafeWrite, WhereThereIsNoFolderFails) {
  const fs::path nowhere = folder / "missing/a.sdk";
  EXPECT_EQ(fault_of(nowhere), nowhere.string() + ": No such file or directory");
  write_file(file, "old");
  EXPECT_EQ(fault_of(file / "b.sdk"), (file / "b.sdk").string() + ": Not a directory");
}

TEST_F(SafeWrite, ToANameThatIsTooLongFails) {
  const fs::path longest = folder / std::string(256, 'n');
  EXPECT_EQ(fault_of(longest), longest.string() + ": File name too long");
  EXPECT_EQ(folder.names(), "");
}

}  // namespace
}  // namespace sdk::test
