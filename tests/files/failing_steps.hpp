// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Saves that fail at one of their steps.
#pragma once

#include <system_error>

#include "files/safe_write.hpp"

namespace sdk::test {

enum class FailsAt { create, write, rename, in_place };

/// Fails at one step for the files of one folder; the other steps, and other folders, work.
class FailingSteps : public SaveSteps {
 public:
  FailingSteps(FailsAt step, std::filesystem::path folder,
               std::errc error = std::errc::no_space_on_device)
      : step_(step), folder_(std::move(folder)), error_(error) {}

  /// How often a file was written in place.
  int writes_in_place = 0;

  /// At `write` half of the bytes are written.
  void write_new(const std::filesystem::path& file, std::string_view bytes) override;
  /// Half of the bytes are written when it fails.
  void write_in_place(const std::filesystem::path& file, std::string_view bytes) override;
  void rename(const std::filesystem::path& from, const std::filesystem::path& to) override;

 private:
  bool fails(FailsAt step, const std::filesystem::path& file) const;
  [[noreturn]] void fail(const std::filesystem::path& file) const;

  FailsAt step_;
  std::filesystem::path folder_;
  std::errc error_;
};

}  // namespace sdk::test
