// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the fuzz targets have in common. Each input meets a program that has just been started, so
/// that a fault can be repeated from its input alone.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include "tests/support/fake_desktop.hpp"
#include "ui/main_window.hpp"

namespace sdk::test {

void write_bytes(const std::filesystem::path& file, std::string_view bytes);

/// Lets the player do a thing that begins one search at most; Escape comes at its 1,000th step.
/// False when the program has ended. Aborts when it goes on in a state that cannot be.
bool goes_on_after(const std::function<void()>& action, MainWindow& window, FakeDesktop& desktop);

}  // namespace sdk::test
