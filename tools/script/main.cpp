// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <iostream>
#include <string>
#include <string_view>

#include "tools/script/help.hpp"
#include "tools/script/script.hpp"

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << sdk::help_text();
    return 0;
  }
  if (argc > 1) {
    std::cerr << "usage: sudoku-script < commands (--help tells the commands)\n";
    return 2;
  }
  sdk::Script script(std::cout, std::cerr);
  for (std::string line; std::getline(std::cin, line);) {
    script.run(line);
    std::cout.flush();
  }
  return script.exit_status();
}
