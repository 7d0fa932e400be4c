// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/transcripts/transcript.hpp"

#include <sstream>

#include "tests/transcripts/preparation.hpp"
#include "tests/transcripts/scratch.hpp"
#include "tools/script/script.hpp"

namespace sdk {

namespace {

constexpr std::string_view command_mark = "> ";
constexpr std::string_view preparation_mark = "= ";
constexpr std::string_view output_mark = "  ";

bool is_command(const std::string& line) { return line.starts_with(command_mark); }
bool is_preparation(const std::string& line) { return line.starts_with(preparation_mark); }
bool is_output(const std::string& line) { return line.starts_with(output_mark); }
bool is_apart(const std::string& line) { return line.empty() || line.starts_with('#'); }

void check(const Lines& transcript) {
  bool commanded = false;
  for (std::size_t i = 0; i < transcript.size(); ++i) {
    const std::string& line = transcript[i];
    const std::string where = "line " + std::to_string(i + 1) + ": ";
    if (is_command(line)) commanded = true;
    if (is_output(line) && !commanded) throw Malformed(where + "output before the first command");
    if (!is_command(line) && !is_preparation(line) && !is_output(line) && !is_apart(line))
      throw Malformed(where +
                      "begins neither with \"> \" nor with two blanks, \"= \" or #: " + line);
  }
  if (!commanded) throw Malformed("there is no command");
}

/// One run of the program in folders of its own.
class ScriptRun {
 public:
  ScriptRun() : script_(out_, errors_) {
    script_.run("program " + scratch_.program().string());
    script_.run("tmp " + scratch_.tmp().string());
  }

  void prepare(const std::string& line) { sdk::prepare(line, scratch_); }

  Lines output_of(const std::string& command) {
    out_.str("");
    errors_.str("");
    script_.run(scratch_.without_placeholders(command));
    Lines output = marked(out_, "");
    for (std::string& line : marked(errors_, "(standard error) "))
      output.push_back(std::move(line));
    return output;
  }

 private:
  Lines marked(const std::ostringstream& stream, const std::string& origin) const {
    Lines lines = lines_of(scratch_.with_placeholders(stream.str()));
    for (std::string& line : lines) line = std::string(output_mark) + origin + line;
    return lines;
  }

  Scratch scratch_;
  std::ostringstream out_, errors_;
  Script script_;
};

}  // namespace

Lines lines_of(const std::string& text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

Lines replay(const Lines& transcript) {
  check(transcript);
  ScriptRun run;
  Lines result;
  for (const std::string& line : transcript) {
    if (is_output(line)) continue;
    result.push_back(line);
    if (is_preparation(line)) run.prepare(line.substr(preparation_mark.size()));
    if (!is_command(line)) continue;
    for (std::string& output : run.output_of(line.substr(command_mark.size())))
      result.push_back(std::move(output));
  }
  return result;
}

}  // namespace sdk
