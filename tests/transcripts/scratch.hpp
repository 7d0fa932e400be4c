// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The fresh folders that one transcript runs in.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/files.hpp"

namespace sdk {

/// Makes the folders below the system's temporary one, lets the environment of this process point
/// to them, makes <work> the current folder, and removes them all at the end. One at a time.
class Scratch {
 public:
  Scratch();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  /// `text` with <program>, <tmp>, <data> and <work> replaced by the folders' paths, <title> by the
  /// program's name and version.
  std::string without_placeholders(std::string text) const;
  /// The other way round.
  std::string with_placeholders(std::string text) const;
  std::filesystem::path program() const { return root_ / "program"; }
  std::filesystem::path tmp() const { return root_ / "tmp"; }

 private:
  struct Placeholder {
    std::string name, meaning;
  };

  std::filesystem::path make_folder(const char* name);

  test::ScratchFolder root_;
  std::filesystem::path start_folder_;
  std::vector<Placeholder> placeholders_;
};

}  // namespace sdk
