// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A virtual X display whose pixels can be read without being one of its clients.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace sdk::bench {

/// Starts an Xvfb of 1024 by 768 pixels and ends it again. Throws std::system_error or
/// std::runtime_error when that fails.
class VirtualScreen {
 public:
  VirtualScreen();
  ~VirtualScreen();
  VirtualScreen(const VirtualScreen&) = delete;
  VirtualScreen& operator=(const VirtualScreen&) = delete;

  /// What DISPLAY must be for the programs to be shown here.
  const std::string& name() const { return name_; }

  /// About how many pixels of the screen have the colour 0xRRGGBB now (every 16th one is asked).
  int pixels_of(std::uint32_t colour) const;

 private:
  void map_pixels();

  std::filesystem::path folder_;
  std::string name_;
  pid_t server_ = -1;
  std::span<const std::uint32_t> file_, pixels_;
};

}  // namespace sdk::bench
