// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/external_solver.hpp"

#include <cerrno>
#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <variant>

#include "board/cells.hpp"
#include "files/platform.hpp"
#include "files/puzzle_file.hpp"
#include "files/text/exchange_text.hpp"
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

[[noreturn]] void fail(const fs::path& file, int error) {
  throw RuntimeError(file.string(), std::generic_category().message(error));
}

/// The file's bytes up to its first line feed, which is among them.
std::string beginning(const fs::path& path) {
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::string bytes;
  if (std::getline(file, bytes)) return file.eof() ? bytes : bytes + '\n';
  if (errno) fail(path, errno);
  return {};
}

std::string answer_line() {
  const std::string output = beginning(output_file());
  const std::optional<std::string_view> line = first_line(output);
  if (!line) throw RuntimeError(output_file().string(), "the file is empty");
  return std::string(*line);
}

void take_digits(std::string_view digits) {
  Window& w = sudoku();
  globals.GrilleOk = true;
  ++w.grid_fills;
  w.ChaineSolution = digits;
  for (int k = 1; k <= static_cast<int>(digits.size()); ++k) {
    const auto [row, column] = cell_at(k);
    w.Grille(row, column) =
        static_cast<std::int16_t>(digits[static_cast<std::size_t>(k - 1)] - '0');
  }
}

void take(const Solution& solution) { take_digits(solution.digits); }

void take(const MissingDigit& fault) {
  take_digits(fault.digits_before);
  throw RuntimeError(output_file().string(), "no digit for cell " + std::to_string(fault.cell()));
}

void take(const NoSolution&) {
  delete_file(output_file());
  delete_file(input_file());
  sudoku().desktop().set_pointer(Pointer::arrow);
  sudoku().trace_ligne();
  globals.GrilleOk = false;
  sudoku().show_message(Message::impossible, Icon::critical);
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
  grid = grid_to_solve(displayed_grid());
  errno = 0;
  std::ofstream file(input_file(), std::ios::binary);
  file << solver_input(grid) << std::flush;
  if (!file) fail(input_file(), errno);
}

void read_sudo() {
  std::visit([](const auto& answer) { take(answer); }, solver_answer(answer_line()));
}

Bool16 ProcessusActif(std::uint32_t id) {
  constexpr std::uint32_t still_active = 259;
  return id != 0 && sudoku().desktop().exit_code(id) == still_active;
}

}  // namespace sdk
