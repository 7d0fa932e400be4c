// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/help.hpp"

#include <algorithm>
#include <string_view>

#include "tools/script/commands.hpp"
#include "tools/script/show.hpp"

namespace sdk {

namespace {

constexpr std::size_t meaning_column = 32;
constexpr std::size_t line_width = 100;

constexpr std::string_view introduction =
    R"(usage: sudoku-script < commands

Runs the game without a screen: commands on standard input, what the player would see on standard
output. One command a line; # starts a comment; rows and columns are 1-based; UTF-8. The program
starts, as with an empty command line, at the first line that is not seed, printer, year, program
or tmp.

Commands
)";

constexpr std::string_view conventions =
    R"(
Numbers are decimal, booleans -1 or 0, colours RRGGBB in upper case, coordinates decimals without
trailing zeros. Quoted texts escape \t \r \n \" \\. visible lists Command1 to Command8, sauve,
Bouton_GO, aide, Check1 to Check3, Niveau, Label, Label3, MSF, MSR, rect, rect2 in this order.

Printed as it happens
  box none|exclamation|critical|question "title" "text" ok -> ok
  box none|exclamation|critical|question "title" "text" yes,no -> yes|no
  dialog open|save "filter" -> "path"
  dialog open|save "filter" -> cancelled
  open "document or address"
  about begin                     the about box opens; its controls, one a line
  about NAME "text"
  about end
  about closed
  pointer arrow|hourglass         only when it changes
  print begin                     the page is 11906 by 16838 twips
  print text X Y "font" SIZE "text"
  print picture X Y W H
  print line WIDTH X1 Y1 X2 Y2
  print end
  ended STATUS                    every later command but comments is an error
  error: <why>                    a command is unknown, malformed, aimed at a hidden control or a
                                  step that is not there, finds nothing to undo or redo, or waits
                                  for an open question to be answered; the run goes on and the
                                  exit status is 2

The generator is std::mt19937 and a draw is its 32-bit output divided by 2^32, so that a seed gives
the same puzzle everywhere. The exit status is 0 when no error was printed.
)";

/// `text` in lines that start at `meaning_column`; the first goes on a line that is `used` long.
std::string wrapped(std::string_view text, std::size_t used) {
  constexpr std::size_t width = line_width - meaning_column;
  std::string result;
  while (!text.empty()) {
    result += std::string(meaning_column - used, ' ');
    const std::size_t length =
        text.size() <= width ? text.size() : std::min(text.rfind(' ', width), text.size());
    result += std::string(text.substr(0, length)) + '\n';
    text.remove_prefix(std::min(length + 1, text.size()));
    used = 0;
  }
  return result;
}

template <class Entry>
std::string entry_text(const Entry& entry) {
  std::string line = "  " + std::string(entry.name);
  if (!entry.arguments.empty()) line += ' ' + std::string(entry.arguments);
  if (line.size() + 2 > meaning_column) return line + '\n' + wrapped(entry.meaning, 0);
  return line + wrapped(entry.meaning, line.size());
}

}  // namespace

std::string help_text() {
  std::string text(introduction);
  for (const Command& command : commands()) text += entry_text(command);
  text += "\nshow prints\n";
  for (const Topic& topic : topics()) text += entry_text(topic);
  return text + std::string(conventions);
}

}  // namespace sdk
