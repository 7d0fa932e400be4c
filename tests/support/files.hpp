// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Folders and files that tests make and look at.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sdk::test {

/// A fresh folder, removed at the end with all that is in it. Everybody may enter it.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::filesystem::path operator/(std::string_view name) const { return folder_ / name; }
  const std::filesystem::path& path() const { return folder_; }
  /// The names of its files, in order.
  std::string names() const;

 private:
  std::filesystem::path folder_;
};

/// The bytes of a file. Throws std::runtime_error when it cannot be read.
std::string bytes_of(const std::filesystem::path& file);

/// Throws std::runtime_error when the file cannot be written.
void write_file(const std::filesystem::path& file, std::string_view bytes);

}  // namespace sdk::test
