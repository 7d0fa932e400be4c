// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/transcripts/scratch.hpp"

#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace sdk {

namespace fs = std::filesystem;

namespace {

struct Placeholder {
  std::string_view name;
  const char* folder;  ///< below the scratch folder
};

constexpr Placeholder placeholders[] = {
    {"<program>", "program"}, {"<tmp>", "tmp"}, {"<data>", "share/sudoku"}, {"<work>", "work"}};

fs::path fresh_folder() {
  std::string pattern = (fs::canonical(fs::temp_directory_path()) / "transcript-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a folder like " + pattern);
  return pattern;
}

void replace_all(std::string& text, std::string_view from, std::string_view to) {
  for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

}  // namespace

Scratch::Scratch() : root_(fresh_folder()), start_folder_(fs::current_path()) {
  for (const Placeholder& p : placeholders) fs::create_directories(root_ / p.folder);
  setenv("XDG_DATA_HOME", (root_ / "share").c_str(), 1);
  setenv("HOME", root_.c_str(), 1);
  setenv("tmp", (root_ / "tmp").c_str(), 1);
  fs::current_path(root_ / "work");
}

Scratch::~Scratch() {
  std::error_code ignored;
  fs::current_path(start_folder_, ignored);
  fs::remove_all(root_, ignored);
}

std::string Scratch::with_paths(std::string text) const {
  for (const Placeholder& p : placeholders) replace_all(text, p.name, (root_ / p.folder).string());
  return text;
}

std::string Scratch::with_placeholders(std::string text) const {
  for (const Placeholder& p : placeholders) replace_all(text, (root_ / p.folder).string(), p.name);
  return text;
}

}  // namespace sdk
