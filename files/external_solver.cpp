// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/external_solver.hpp"

#include <algorithm>
#include <cerrno>
#include <exception>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "board/grid_text.hpp"
#include "files/platform.hpp"
#include "files/puzzle_file.hpp"
#include "game/window.hpp"
#include "screen/errors.hpp"

namespace sdk {

namespace fs = std::filesystem;

namespace {

fs::path exchange_file(const char* name) {
  return fs::path(sudoku().desktop().temporary_folder()) / name;
}

fs::path input_file() { return exchange_file("00000.000"); }
fs::path output_file() { return exchange_file("out.000"); }

/// Deleting what is not there is a failure.
void delete_file(const fs::path& file) {
  std::error_code error;
  if (!fs::remove(file, error))
    throw RuntimeError(file.string(), error ? error.message() : "no such file");
}

std::string first_line(const fs::path& path) {
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::string line;
  if (!std::getline(file, line))
    throw RuntimeError(path.string(),
                       errno ? std::generic_category().message(errno) : "the file is empty");
  return line.substr(0, line.find('\r'));
}

void report_no_solution() {
  delete_file(output_file());
  delete_file(input_file());
  sudoku().desktop().set_pointer(Pointer::arrow);
  sudoku().trace_ligne();
  globals.GrilleOk = false;
  sudoku().show_message(Message::impossible, Icon::critical);
}

/// The digit of a cell of the answer.
char digit_at(std::string_view answer, int k) {
  const std::string_view text = character(answer, k);
  if (text.empty() || text[0] < '0' || text[0] > '9')
    throw RuntimeError(output_file().string(), "no digit for cell " + std::to_string(k));
  return text[0];
}

void take_solution(std::string_view answer) {
  globals.GrilleOk = true;
  ++sudoku().grid_fills;
  sudoku().ChaineSolution.clear();
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j) {
      const char digit = digit_at(answer, (i - 1) * 9 + j);
      sudoku().Grille(i, j) = static_cast<std::int16_t>(digit - '0');
      sudoku().ChaineSolution += digit;
    }
}

void run_solver() {
  Desktop& desktop = sudoku().desktop();
  const std::uint32_t id = desktop.start_process(platform::solver_command(output_file()));
  desktop.set_pointer(Pointer::hourglass);
  while (ProcessusActif(id)) {
  }
}

void show_answer() {
  Window& w = sudoku();
  if (!globals.ResolutionSilencieuse) w.Afficher_resGrille();
  w.MSF.refresh();
  w.MajCandidats();
  w.trace_ligne();
}

void solve() {
  fs::current_path(sudoku().desktop().program_folder());
  if (!fs::is_regular_file("zolv.exe")) return sudoku().Resoudre();
  sudoku().Lire_Grille_Initiale(0, 0);
  sauve_sudo();
  run_solver();
  read_sudo();
  show_answer();
  delete_file(output_file());
  delete_file(input_file());
  sudoku().desktop().set_pointer(Pointer::arrow);
}

}  // namespace

void Bouton_GO_Click() {
  try {
    solve();
  } catch (const std::exception&) {
    // Whatever went wrong, the command ends here without a word; the end of the program passes.
  }
}

void sauve_sudo() {
  std::string& grid = sudoku().ChaineGrille;
  grid = displayed_grid();
  std::ranges::replace(grid, ' ', '0');
  std::string text;
  for (const char c : grid) text += {c, ' '};
  errno = 0;
  std::ofstream file(input_file(), std::ios::binary);
  file << text << std::flush;
  if (!file) throw RuntimeError(input_file().string(), std::generic_category().message(errno));
}

void read_sudo() {
  std::string line = first_line(output_file());
  if (line.find('0') != std::string::npos) return report_no_solution();
  std::erase(line, ' ');
  take_solution(line);
}

Bool16 ProcessusActif(std::uint32_t id) {
  constexpr std::uint32_t still_active = 259;
  return id != 0 && sudoku().desktop().exit_code(id) == still_active;
}

}  // namespace sdk
