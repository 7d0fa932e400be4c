// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "board/fault.hpp"

#include <cstdlib>
#include <iostream>

namespace sdk {

void abort_on(const std::string& fault) {
  if (fault.empty()) return;
  std::cerr << "SuDoKu: a check of the program's own state failed: " << fault << std::endl;
  std::abort();
}

}  // namespace sdk
