// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Colours as the program stores and compares them: 32 bits, 0x00BBGGRR.
#pragma once

#include <array>
#include <cstdint>

namespace sdk {

using Colour = std::uint32_t;

namespace colour {

inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour black = 0x000000;
inline constexpr Colour red = 0x0000FF;
inline constexpr Colour green = 0x008000;

/// The background of the givens of levels 0 to 4.
inline constexpr std::array<Colour, 5> level{0xC0FFC0, 0xC0FFFF, 0xC0E0FF, 0xC0C0FF, 0xFFC0FF};
/// The background of the givens of a puzzle that was read from a file.
inline constexpr Colour from_file = 0xE0E0E0;

constexpr std::uint8_t red_of(Colour c) { return c & 0xFF; }
constexpr std::uint8_t green_of(Colour c) { return (c >> 8) & 0xFF; }
constexpr std::uint8_t blue_of(Colour c) { return (c >> 16) & 0xFF; }

}  // namespace colour
}  // namespace sdk
