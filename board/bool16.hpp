// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The boolean of masks, fields and flags.
#pragma once

#include <cstdint>

namespace sdk {

/// A boolean of 16 bits whose true is -1 (all bits set) and whose false is 0.
class Bool16 {
 public:
  constexpr Bool16() = default;
  constexpr Bool16(bool value) : bits_(value ? -1 : 0) {}
  constexpr operator bool() const { return bits_ != 0; }
  /// The stored bits: -1 or 0.
  constexpr std::int16_t bits() const { return bits_; }

 private:
  std::int16_t bits_ = 0;
};

}  // namespace sdk
