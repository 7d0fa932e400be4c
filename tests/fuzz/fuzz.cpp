// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/fuzz/fuzz.hpp"

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "ui/state_check.hpp"

namespace sdk::test {

void write_bytes(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream << bytes << std::flush;
  if (!stream) std::abort();
}

bool goes_on_after(const std::function<void()>& action, MainWindow& window, FakeDesktop& desktop) {
  constexpr long escape_step = 1000;
  desktop.forget();
  desktop.at_step = {{escape_step, [&window] { window.preview_key(key::escape); }}};
  try {
    action();
  } catch (const ProgramEnd&) {
    return false;
  }
  const std::string fault = state_fault(window);
  if (fault.empty()) return true;
  std::cerr << fault << std::endl;
  std::abort();
}

}  // namespace sdk::test
