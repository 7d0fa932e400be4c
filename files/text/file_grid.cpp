// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/text/file_grid.hpp"

#include <cerrno>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "files/text/puzzle_file_text.hpp"

namespace sdk {

namespace {

/// More than any puzzle file holds; keeps an endless device from filling the memory.
constexpr std::size_t largest_file = 16 << 20;

/// Appends all bytes of the file; the system's number for what went wrong, 0 when nothing did.
int read_all(const std::string& name, std::string& bytes) {
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  if (!file) return errno;
  for (char chunk[4096]; file.read(chunk, sizeof chunk), file.gcount() > 0;) {
    bytes.append(chunk, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > largest_file) return EFBIG;
  }
  return file.bad() ? errno : 0;
}

}  // namespace

FileGrid grid_in_file(const std::string& name) {
  std::string bytes;
  if (const int error = read_all(name, bytes); error != 0)
    return {"", std::generic_category().message(error)};
  std::optional<std::string> cells = grid_of_file(std::move(bytes));
  if (!cells) return {"", "the file is empty"};
  return {*std::move(cells), ""};
}

}  // namespace sdk
