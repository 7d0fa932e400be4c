// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <iostream>
#include <string>

#include "tools/command_line/command_line.hpp"
#include "tools/script/help.hpp"
#include "tools/script/script.hpp"

int main(int argc, char** argv) {
  bool help = false;
  sdk::CommandLine line;
  line.add_lone_switch("--help", help);
  if (!line.read(argc, argv)) {
    std::cerr << "usage: sudoku-script < commands (--help tells the commands)\n";
    return 2;
  }
  if (help) {
    std::cout << sdk::help_text();
    return 0;
  }
  sdk::Script script(std::cout, std::cerr);
  for (std::string command; std::getline(std::cin, command);) {
    script.run(command);
    std::cout.flush();
  }
  return script.exit_status();
}
