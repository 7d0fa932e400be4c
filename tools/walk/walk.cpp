// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/walk.hpp"

#include <algorithm>
#include <utility>

#include "pas_a_pas/order.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/view.hpp"
#include "puzzles/library.hpp"
#include "screen/errors.hpp"
#include "ui/explanations.hpp"

namespace sdk {

Answer YesDesktop::message_box(const std::string&, Icon, Buttons buttons, const std::string&) {
  return buttons == Buttons::yes_no ? Answer::yes : Answer::ok;
}

PageSize YesDesktop::printer_page() { throw RuntimeError("printer", "there is none"); }

std::filesystem::path YesDesktop::data_folder() {
  throw RuntimeError("data folder", "there is none");
}

namespace {

std::string name_of(Cell cell) {
  return "r" + std::to_string(cell.row) + "c" + std::to_string(cell.column);
}

std::string marked_cells(int mode) {
  std::string names;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (sudoku().MSR.cell(cell.row - 1, cell.column - 1).mark != mode) continue;
    if (!names.empty()) names += ',';
    names += name_of(cell);
  }
  return names;
}

std::string marks() {
  return "3=" + marked_cells(mark::removed) + " 4=" + marked_cells(mark::support) +
         " 6=" + marked_cells(mark::second);
}

/// Writes the walk's lines as the run goes on.
class WalkText final : public SolverObserver {
 public:
  void trying(const Technique&) override {
    for (int number = 1; number <= 81; ++number)
      before_[static_cast<std::size_t>(number)] = solver.Candidats.digits(cell_at(number));
  }

  void tried(const Technique& technique, bool changed) override {
    if (!changed) return;
    text += technique.place < 10 ? "T0" : "T";
    text += std::to_string(technique.place) + eliminations() + "\n";
  }

  void offered(Single kind, Cell cell, int digit) override {
    text += (kind == Single::naked ? "N " : "H ") + name_of(cell) + "=" + std::to_string(digit) +
            " | " + marks() + "\n";
  }

  void ended(RunEnd end) override { text += "E " + name_of_end(end) + " | " + marks() + "\n"; }

  std::string text;

 private:
  std::string eliminations() const {
    std::string items;
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      const NineSet gone =
          before_[static_cast<std::size_t>(number)] - solver.Candidats.digits(cell);
      if (gone.empty()) continue;
      items += " " + name_of(cell) + "-";
      for (const int digit : gone) items += std::to_string(digit);
    }
    return items;
  }

  static std::string name_of_end(RunEnd end) {
    if (end == RunEnd::completed) return "completed";
    if (end == RunEnd::exhausted) return "exhausted";
    return "dead " + name_of(cell_at(*solver.step.cells_as(Role::pattern).begin()));
  }

  std::array<NineSet, 82> before_{};
};

/// Writes the same in sentences.
class ExplainedText final : public SolverObserver {
 public:
  explicit ExplainedText(std::string_view language) : language_(language) {}

  void tried(const Technique&, bool changed) override {
    if (changed) text += explain(solver.step, language_) + "\n";
  }
  void offered(Single, Cell, int) override { text += explain(solver.step, language_) + "\n"; }
  void ended(RunEnd end) override { text += explain(end, solver.step, language_) + "\n"; }

  std::string text;

 private:
  std::string_view language_;
};

std::string grid_line(std::string_view puzzle) {
  std::string grid(puzzle);
  std::ranges::replace(grid, '0', '.');
  return "grid " + grid + "\n";
}

}  // namespace

Walker::Walker() { window_.start(""); }

void Walker::play(std::string_view puzzle, SolverObserver& observer) {
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 9; ++column) {
      const char c = puzzle[static_cast<std::size_t>(row * 9 + column)];
      window_.MSF.set_text(row, column, std::string(1, c == '.' || c == '0' ? ' ' : c));
    }
  solver.observer = &observer;
  window_.click(Control::Command8);
  solver.observer = nullptr;
}

std::string Walker::walk(std::string_view puzzle) {
  WalkText walk;
  play(puzzle, walk);
  return grid_line(puzzle) + walk.text;
}

std::string Walker::explained(std::string_view puzzle, std::string_view language) {
  ExplainedText walk(language);
  play(puzzle, walk);
  return grid_line(puzzle) + walk.text;
}

namespace {

std::string shown_puzzle(const LibraryEntry& entry) {
  std::string puzzle(entry.solution);
  for (std::size_t k = 0; k < puzzle.size(); ++k)
    if (entry.mask[k] == '0') puzzle[k] = '.';
  return puzzle;
}

/// 64-bit FNV-1a.
class Checksum {
 public:
  void add(std::string_view text) {
    for (const char c : text) value_ = (value_ ^ static_cast<unsigned char>(c)) * 1099511628211u;
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 14695981039346656037u;
};

}  // namespace

std::uint64_t library_signature() {
  Walker walker;
  Checksum checksum;
  for (const LibraryEntry& entry : BibliothequeGrilles)
    checksum.add(walker.walk(shown_puzzle(entry)));
  return checksum.value();
}

}  // namespace sdk
