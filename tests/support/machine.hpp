// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the tests of files need of the machine, put back at their end.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "tests/support/files.hpp"

namespace sdk::test {

/// A puzzle that every search solves within a few hundred steps, and its solution, which is what
/// every good stand-in of the external solver answers.
inline constexpr const char* puzzle =
    "987654321\n1.5927468\n642138579\n426571983\n793482156\n518396742\n371865294\n2697438.5\n"
    ".5421963.\n";
inline constexpr const char* solution =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

/// Puts the current folder back.
class KeptFolder {
 public:
  ~KeptFolder() { std::filesystem::current_path(folder_); }

 private:
  std::filesystem::path folder_ = std::filesystem::current_path();
};

/// A variable of the environment with another value, or none.
class Variable {
 public:
  Variable(std::string name, const std::optional<std::string>& value);
  ~Variable();
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  std::string name_;
  std::optional<std::string> before_;
};

/// A player to whom access rights apply, also when the tests are run by root.
class PlainUser {
 public:
  PlainUser();
  ~PlainUser();
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;

 private:
  bool was_root_;
};

/// No file may grow longer than that: what is beyond fails as on a full disk.
class FileLimit {
 public:
  explicit FileLimit(std::size_t bytes);
  ~FileLimit();
  FileLimit(const FileLimit&) = delete;
  FileLimit& operator=(const FileLimit&) = delete;
};

/// Owner, group and others: 0777 at most.
unsigned rights_of(const std::filesystem::path& file);

}  // namespace sdk::test
