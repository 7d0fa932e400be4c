// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Saving where access rights stand in the way.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/safe_write.hpp"
#include "screen/errors.hpp"
#include "tests/files/failing_steps.hpp"
#include "tests/support/fake_desktop.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;

class ClosedFolder : public testing::Test {
 protected:
  ClosedFolder() { write_file(file, "old and long"); }
  ~ClosedFolder() override { open(); }

  /// Everybody may write into the file, nobody may make a file beside it.
  void close() {
    fs::permissions(file, fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(0555));
  }

  void open() { fs::permissions(folder.path(), fs::perms(0755)); }

  std::string fault_of_saving_as_a_plain_user(const fs::path& target) {
    const PlainUser user;
    try {
      SaveSteps steps;
      replace_file(target, "new", steps);
      return "";
    } catch (const RuntimeError& error) {
      return error.what();
    }
  }

  ScratchFolder folder;
  const fs::path file = folder / "a.sdk";
};

TEST_F(ClosedFolder, TakesAFileInPlace) {
  close();
  EXPECT_EQ(fault_of_saving_as_a_plain_user(file), "");
  EXPECT_EQ(bytes_of(file), "new");
  EXPECT_EQ(rights_of(file), 0666u);
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(ClosedFolder, TakesNoNewFile) {
  close();
  const fs::path other = folder / "b.sdk";
  EXPECT_EQ(fault_of_saving_as_a_plain_user(other), other.string() + ": Permission denied");
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(ClosedFolder, OfWhateverKindIsWrittenInPlace) {
  for (const std::errc error : {std::errc::permission_denied, std::errc::operation_not_permitted,
                                std::errc::read_only_file_system}) {
    write_file(file, "old and long");
    FailingSteps steps(FailsAt::create, folder.path(), error);
    replace_file(file, "new", steps);
    EXPECT_EQ(bytes_of(file), "new");
    EXPECT_EQ(steps.writes_in_place, 1);
  }
}

TEST_F(ClosedFolder, WhereARenameIsRefusedIsWrittenInPlace) {
  FailingSteps steps(FailsAt::rename, folder.path(), std::errc::operation_not_permitted);
  replace_file(file, "new", steps);
  EXPECT_EQ(bytes_of(file), "new");
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(ClosedFolder, WithANewFileOnlyFails) {
  FailingSteps steps(FailsAt::create, folder.path(), std::errc::permission_denied);
  EXPECT_THROW(replace_file(folder / "b.sdk", "new", steps), RuntimeError);
  EXPECT_EQ(steps.writes_in_place, 0);
}

TEST_F(ClosedFolder, WhosePlayerMayNotEnterFails) {
  fs::permissions(folder.path(), fs::perms(0));
  EXPECT_EQ(fault_of_saving_as_a_plain_user(file), file.string() + ": Permission denied");
  open();
  EXPECT_EQ(bytes_of(file), "old and long");
}

class ReadOnlyFile : public ClosedFolder {};

TEST_F(ReadOnlyFile, IsNotReplacedInAFolderThatTakesNewFiles) {
  if (geteuid() == 0) {
    ASSERT_EQ(chown(folder.path().c_str(), nobody, nobody), 0);
    ASSERT_EQ(chown(file.c_str(), nobody, nobody), 0);
  }
  fs::permissions(file, fs::perms(0444));
  EXPECT_EQ(fault_of_saving_as_a_plain_user(file), file.string() + ": Permission denied");
  EXPECT_EQ(bytes_of(file), "old and long");
  EXPECT_EQ(rights_of(file), 0444u);
  EXPECT_EQ(folder.names(), "a.sdk");
}

TEST_F(ReadOnlyFile, OfAnotherOwnerThatMayBeWrittenKeepsItsOwner) {
  fs::permissions(folder.path(), fs::perms(0777));
  fs::permissions(file, fs::perms(0666));
  EXPECT_EQ(fault_of_saving_as_a_plain_user(file), "");
  EXPECT_EQ(bytes_of(file), "new");
  struct stat after {};
  ASSERT_EQ(stat(file.c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, geteuid());
  EXPECT_EQ(folder.names(), "a.sdk");
}

}  // namespace
}  // namespace sdk::test
