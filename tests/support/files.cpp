// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/files.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace sdk::test {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
  std::string name = (fs::canonical(fs::temp_directory_path()) / "sudoku-test-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a folder like " + name);
  folder_ = name;
  fs::permissions(folder_, fs::perms(0755));
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string ScratchFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_))
    names.push_back(entry.path().filename().string());
  std::ranges::sort(names);
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
  return text;
}

std::string bytes_of(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

void write_file(const fs::path& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream << bytes << std::flush;
  if (!stream) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace sdk::test
