// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/platform_desktop.hpp"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <system_error>

#include "files/platform.hpp"
#include "files/safe_write.hpp"

namespace sdk {

PlatformDesktop::~PlatformDesktop() { remove_private_folder(); }

void PlatformDesktop::remove_private_folder() noexcept {
  std::error_code ignored;
  if (!private_folder_.empty()) std::filesystem::remove_all(private_folder_, ignored);
}

std::filesystem::path PlatformDesktop::program_folder() { return platform::program_folder(); }

std::string PlatformDesktop::temporary_folder() {
  if (const char* folder = std::getenv("tmp"); folder && *folder) return folder;
  private_folder_ = platform::make_private_folder();
  platform::set_environment("tmp", private_folder_.string());
  return private_folder_.string();
}

std::uint32_t PlatformDesktop::start_process(const std::string& command_line) {
  return platform::start_process(command_line);
}

std::optional<std::uint32_t> PlatformDesktop::exit_code(std::uint32_t id) {
  return platform::collect_exit_code(id);
}

void PlatformDesktop::replace_file(const std::string& file, std::string_view bytes) {
  SaveSteps steps;
  sdk::replace_file(file, bytes, steps);
}

std::uint32_t PlatformDesktop::random_seed() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto ticks =
      static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
  return static_cast<std::uint32_t>(ticks ^ (ticks >> 32));
}

int PlatformDesktop::year() {
  const std::time_t now = std::time(nullptr);
  return std::localtime(&now)->tm_year + 1900;
}

void PlatformDesktop::report_error(const std::string& line) { std::cerr << line << std::endl; }

}  // namespace sdk
