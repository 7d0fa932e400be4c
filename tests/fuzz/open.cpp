// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Any bytes as a puzzle file: named on the command line, and chosen in the open dialog.

#include "tests/fuzz/fuzz.hpp"

using namespace sdk;
using namespace sdk::test;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static FakeDesktop desktop;
  static const std::string file = desktop.temporary_folder() + "/a.sdk";
  write_bytes(file, {reinterpret_cast<const char*>(data), size});
  MainWindow window(desktop);
  const auto start = [&] {
    window.start(file);
    window.finish_start();
  };
  if (!goes_on_after(start, window, desktop)) return 0;
  desktop.chosen = {file};
  goes_on_after([&] { window.click(Control::Command6); }, window, desktop);
  return 0;
}
