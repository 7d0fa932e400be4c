// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/steps.hpp"

#include <algorithm>
#include <array>
#include <limits>

#include "tools/script/grid_format.hpp"
#include "tools/script/script.hpp"

namespace sdk {

namespace {

void choose(MainWindow& window, std::size_t number) {
  const std::size_t steps = window.explanation().size();
  if (number > steps)
    throw ScriptError("no step " + std::to_string(number) + ": the explanation has " +
                      std::to_string(steps));
  window.choose_step(number - 1);
}

}  // namespace

Action choose_step(Script& script, Arguments& arguments) {
  if (arguments.next() == "none") {
    arguments.take_word("N");
    return [&script] { script.window().choose_step(std::nullopt); };
  }
  const long number = arguments.take_number("N", 1, std::numeric_limits<int>::max());
  return [&script, number] { choose(script.window(), static_cast<std::size_t>(number)); };
}

namespace {

std::string lines_of(const Explanation& explanation) {
  std::string text;
  std::size_t step = 0;
  for (const std::string& sentences : explanation.texts(globals.Langue)) {
    text += step == explanation.chosen() ? "> " : "  ";
    text += std::to_string(++step) + ". " + sentences + '\n';
  }
  return text;
}

}  // namespace

TopicText show_explanation(Arguments&) {
  return [](Script& script) {
    const std::string lines = lines_of(script.window().explanation());
    return lines.empty() ? "none\n" : lines;
  };
}

namespace {

std::string prefix_of(Mark mark) {
  switch (mark) {
    case Mark::removed:
      return "!";
    case Mark::support:
      return "*";
    case Mark::second:
      return "+";
    default:
      return "";
  }
}

std::string drawing(const PictureCell& cell) {
  std::string text = prefix_of(cell.mark);
  if (cell.value != 0) return text + '=' + std::to_string(cell.value);
  if (cell.candidates.empty()) return text + '0';
  for (const int digit : cell.candidates)
    text += std::to_string(digit) + (cell.removed.contains(digit) ? "-" : "");
  return text;
}

std::size_t width_of(const StepPicture& step, int column) {
  std::size_t width = 0;
  for (int row = 1; row <= 9; ++row)
    width = std::max(width, drawing(step.cells(row, column)).size());
  return width;
}

std::string drawing(const StepPicture& step) {
  std::array<std::size_t, 8> widths{};  // nothing follows the last column
  for (std::size_t c = 0; c < widths.size(); ++c)
    widths[c] = width_of(step, static_cast<int>(c) + 1);
  return square_text(" ", [&](int r, int c) {
    std::string text = drawing(step.cells(r + 1, c + 1));
    const auto column = static_cast<std::size_t>(c);
    if (column < widths.size()) text.resize(widths[column], ' ');
    return text;
  });
}

}  // namespace

TopicText show_step(Arguments&) {
  return [](Script& script) {
    const auto picture = script.window().explanation().picture();
    return picture ? drawing(*picture) : "none\n";
  };
}

}  // namespace sdk
