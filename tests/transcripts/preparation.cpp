// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/transcripts/preparation.hpp"

#include "tests/transcripts/transcript.hpp"

namespace sdk {

namespace fs = std::filesystem;

namespace {

char unescaped(char after_backslash) {
  switch (after_backslash) {
    case 't':
      return '\t';
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    default:
      return after_backslash;
  }
}

std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i)
    result += text[i] == '\\' && i + 1 < text.size() ? unescaped(text[++i]) : text[i];
  return result;
}

/// `PATH "TEXT"`
void write_file(const std::string& arguments) {
  const auto quote = arguments.find(" \"");
  if (quote == std::string::npos || quote + 2 >= arguments.size() || arguments.back() != '"')
    throw Malformed("not PATH \"TEXT\": " + arguments);
  const std::string path = arguments.substr(0, quote);
  const std::string_view text =
      std::string_view(arguments).substr(quote + 2, arguments.size() - quote - 3);
  test::write_file(path, unescaped(text));
}

void install_solver(const std::string& name, const fs::path& program) {
  const fs::path stand_in = fs::path(STAND_INS) / (name + ".sh");
  if (!fs::is_regular_file(stand_in)) throw Malformed("no stand-in is called " + name);
  fs::copy_file(stand_in, program / "zolv.exe", fs::copy_options::overwrite_existing);
}

}  // namespace

void prepare(const std::string& line, const Scratch& scratch) {
  const auto blank = line.find(' ');
  const std::string what = line.substr(0, blank);
  const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
  if (what == "file") return write_file(scratch.without_placeholders(rest));
  if (what == "solver") return install_solver(rest, scratch.program());
  throw Malformed("neither file nor solver: " + line);
}

}  // namespace sdk
