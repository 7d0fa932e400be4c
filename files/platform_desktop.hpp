// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The part of the desktop that needs no screen: processes, folders, the environment and saving.
/// Every front end builds on it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "screen/desktop.hpp"

namespace sdk {

class PlatformDesktop : public Desktop {
 public:
  /// Removes the private temporary folder, if one was made, with all that is in it.
  ~PlatformDesktop() override;
  /// The same, for a program that ends without its destructors.
  void remove_private_folder() noexcept;

  std::filesystem::path program_folder() override;
  std::string temporary_folder() override;
  std::uint32_t start_process(const std::string& command_line) override;
  std::optional<std::uint32_t> exit_code(std::uint32_t id) override;
  void replace_file(const std::string& file, std::string_view bytes) override;
  std::uint32_t random_seed() override;
  int year() override;
  void report_error(const std::string& line) override;

 private:
  std::filesystem::path private_folder_;
};

}  // namespace sdk
