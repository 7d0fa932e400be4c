// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/logic/board_file.hpp"

#include <algorithm>
#include <set>
#include <sstream>

#include "board/cells.hpp"
#include "logic/techniques.hpp"
#include "tests/support/files.hpp"

namespace sdk::test {

namespace {

void require(bool is_right, const std::string& fault) {
  if (!is_right) throw Malformed(fault);
}

struct Line {
  int number;
  std::vector<std::string> words;

  bool starts_with(std::string_view key) const { return !words.empty() && words[0] == key; }
};

/// The words of a line without its comment and its bars; none for a line of dashes.
std::vector<std::string> words_of(std::string text) {
  text = text.substr(0, text.find('#'));
  std::ranges::replace(text, '|', ' ');
  if (text.find_first_not_of("-+ \t\r") == std::string::npos) return {};
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

/// Hands out the lines that say something; at the end a line without words.
class Reader {
 public:
  explicit Reader(std::string_view text) : stream_(std::string(text)) { advance(); }

  const Line& next() const { return next_; }
  bool at_end() const { return next_.words.empty(); }
  Line take() {
    Line taken = std::move(next_);
    last_taken_ = taken.number;
    advance();
    return taken;
  }
  int last_taken() const { return last_taken_; }

 private:
  void advance() {
    next_ = {next_.number, {}};
    for (std::string text; next_.words.empty() && std::getline(stream_, text);)
      next_ = {next_.number + 1, words_of(text)};
  }

  std::istringstream stream_;
  Line next_{0, {}};
  int last_taken_ = 0;
};

std::string two_digits(int place) { return (place < 10 ? "0" : "") + std::to_string(place); }

/// The one word after a key.
std::string take_setting(Reader& reader, const std::string& key) {
  const Line line = reader.take();
  require(line.starts_with(key) && line.words.size() == 2, "expected: " + key + " and one word");
  return line.words[1];
}

BoardFile take_head(Reader& reader, const std::string& file_name) {
  BoardFile file;
  const std::string id = take_setting(reader, "technique");
  const auto found = std::ranges::find(techniques, id, &Technique::id);
  require(found != techniques.end(), "there is no technique " + id);
  require(file_name.starts_with(two_digits(found->place)),
          "the file's name does not begin with the place " + two_digits(found->place));
  file.technique = &*found;
  const std::string recomputes = take_setting(reader, "recomputes");
  require(recomputes == "yes" || recomputes == "no", "recomputes is yes or no");
  file.recomputes = recomputes == "yes";
  return file;
}

Square<DrawnCell> take_board(Reader& reader) {
  Square<DrawnCell> cells;
  for (int row = 1; row <= 9; ++row) {
    const Line line = reader.take();
    require(line.words.size() == 9, "a line of the board has nine cells");
    for (int column = 1; column <= 9; ++column)
      cells(row, column) = parse_cell(line.words[static_cast<std::size_t>(column - 1)]);
  }
  return cells;
}

// The lines below the board. Each sets one thing of a cell, and must say something new.

void set_pair(DrawnCell& cell, const std::string& digits) {
  require(digits.size() == 2 && digits[0] < digits[1], "a pair is two ascending digits");
  const Pair pair{static_cast<std::uint8_t>(digit_of(digits[0])),
                  static_cast<std::uint8_t>(digit_of(digits[1]))};
  require(pair != cell.pair, "the pair follows from the drawing");
  cell.pair = pair;
}

void set_count(DrawnCell& cell, const std::string& digit) {
  require(digit.size() == 1, "a count is one digit");
  const int count = digit == "0" ? 0 : digit_of(digit[0]);
  require(count != cell.count, "the count follows from the drawing");
  cell.count = count;
}

void set_mark(DrawnCell& cell, const std::string& mode) {
  require(mode == "3" || mode == "4" || mode == "6", "a mark is 3, 4 or 6");
  require(cell.mark_before == 0, "the cell has a mark already");
  cell.mark_before = digit_of(mode[0]);
}

using Setter = void (*)(DrawnCell&, const std::string&);

struct Key {
  std::string_view name;
  Setter set;
};
constexpr std::array<Key, 3> keys{
    {{"pairs", set_pair}, {"counts", set_count}, {"marks", set_mark}}};

/// `entry` is such as r1c3=38.
void set_entry(Square<DrawnCell>& cells, const std::string& entry, Setter set) {
  require(entry.size() > 5 && entry[0] == 'r' && entry[2] == 'c' && entry[4] == '=',
          entry + " is not such as r1c3=2");
  set(cells(digit_of(entry[1]), digit_of(entry[3])), entry.substr(5));
}

void take_settings(Reader& reader, Square<DrawnCell>& cells) {
  std::set<std::string> seen;
  while (reader.next().words.size() > 1) {
    const Line line = reader.take();
    const auto key = std::ranges::find(keys, line.words[0], &Key::name);
    require(key != keys.end(), "what is " + line.words[0] + "?");
    require(seen.insert(line.words[0]).second, line.words[0] + " stands twice");
    for (std::size_t i = 1; i < line.words.size(); ++i) set_entry(cells, line.words[i], key->set);
  }
}

bool take_verdict(Reader& reader) {
  const Line line = reader.take();
  require(line.starts_with("fires") || line.starts_with("silent"), "expected: fires or silent");
  return line.words[0] == "fires";
}

/// Whether any cell has the property.
template <class Property>
bool some_cell(const Square<DrawnCell>& cells, Property property) {
  for (int cell = 1; cell <= 81; ++cell)
    if (property(cells(cell_at(cell).row, cell_at(cell).column))) return true;
  return false;
}

void check(const BoardCase& board) {
  const bool removes = some_cell(board.cells, [](auto& cell) { return !cell.removed.empty(); });
  const bool marks = some_cell(board.cells, [](auto& cell) { return cell.prefix.has_value(); });
  require(!board.fires || removes, "a case that fires removes something");
  require(board.fires || !removes, "a silent case removes nothing");
  require(board.fires || !marks, "a silent case marks nothing");
  require(
      !some_cell(board.cells, [](auto& cell) { return cell.prefix == 0 && cell.mark_before == 0; }),
      "a mark that never stood is not taken away");
}

bool is_name(const std::string& name) {
  return std::ranges::all_of(name, [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

BoardCase take_case(Reader& reader) {
  BoardCase board;
  board.name = take_setting(reader, "case");
  require(is_name(board.name), "a name has letters, digits and underscores");
  board.cells = take_board(reader);
  take_settings(reader, board.cells);
  board.fires = take_verdict(reader);
  check(board);
  return board;
}

BoardFile take_file(Reader& reader, const std::string& file_name) {
  BoardFile file = take_head(reader, file_name);
  std::set<std::string> names;
  while (!reader.at_end()) {
    file.cases.push_back(take_case(reader));
    require(names.insert(file.cases.back().name).second,
            "there are two cases " + file.cases.back().name);
  }
  require(!file.cases.empty(), "there is no case");
  return file;
}

}  // namespace

BoardFile parse_boards(std::string_view text, const std::string& file_name) {
  Reader reader(text);
  try {
    return take_file(reader, file_name);
  } catch (const Malformed& fault) {
    throw Malformed(file_name + ":" + std::to_string(reader.last_taken()) + ": " + fault.what());
  }
}

BoardFile read_boards(const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file)) throw Malformed(file.string() + " cannot be read");
  return parse_boards(bytes_of(file), file.filename().string());
}

std::vector<BoardFile> read_all_boards(const std::filesystem::path& folder) {
  std::vector<BoardFile> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".txt") files.push_back(read_boards(entry.path()));
  if (files.empty()) throw Malformed(folder.string() + " holds no boards");
  return files;
}

}  // namespace sdk::test
