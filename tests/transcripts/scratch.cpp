// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/transcripts/scratch.hpp"

#include <cstdlib>
#include <string_view>

#include "ui/version.hpp"

namespace sdk {

namespace fs = std::filesystem;

namespace {

void replace_all(std::string& text, std::string_view from, std::string_view to) {
  for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

}  // namespace

Scratch::Scratch()
    : start_folder_(fs::current_path()),
      placeholders_{{"<program>", make_folder("program")},
                    {"<tmp>", make_folder("tmp")},
                    {"<data>", make_folder("share/sudoku")},
                    {"<work>", make_folder("work")},
                    {"<title>", program_title}} {
  setenv("XDG_DATA_HOME", (root_ / "share").c_str(), 1);
  setenv("HOME", root_.path().c_str(), 1);
  setenv("tmp", (root_ / "tmp").c_str(), 1);
  fs::current_path(root_ / "work");
}

Scratch::~Scratch() {
  std::error_code ignored;
  fs::current_path(start_folder_, ignored);
}

fs::path Scratch::make_folder(const char* name) {
  fs::create_directories(root_ / name);
  return root_ / name;
}

std::string Scratch::without_placeholders(std::string text) const {
  for (const Placeholder& p : placeholders_) replace_all(text, p.name, p.meaning);
  return text;
}

std::string Scratch::with_placeholders(std::string text) const {
  for (const Placeholder& p : placeholders_) replace_all(text, p.meaning, p.name);
  return text;
}

}  // namespace sdk
