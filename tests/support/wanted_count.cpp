// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/wanted_count.hpp"

#include <charconv>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace sdk::test {

int wanted_count(const std::string& variable, int otherwise) {
  const char* const value = std::getenv(variable.c_str());
  if (!value) return otherwise;
  const std::string_view text = value;
  int count = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (fault != std::errc() || end != text.data() + text.size() || count < 1)
    throw std::invalid_argument(variable + " is not a number from 1: " + value);
  return count;
}

}  // namespace sdk::test
