// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Any bytes as the external solver's answer.

#include <cstdlib>

#include "files/text/exchange_text.hpp"
#include "tests/fuzz/fuzz.hpp"

using namespace sdk;
using namespace sdk::test;

namespace {

constexpr const char* puzzle =
    "987654321\n1.5927468\n642138579\n426571983\n793482156\n518396742\n371865294\n2697438.5\n"
    ".5421963.\n";

/// Its external solver answers at once, and has ended then.
class AnsweringDesktop : public FakeDesktop {
 public:
  std::string_view answer;

  AnsweringDesktop() {
    write_bytes(program_folder() / "zolv.exe", "");
    write_bytes(puzzle_file(), puzzle);
    exit_codes[1] = 0;
  }
  std::string puzzle_file() { return temporary_folder() + "/a.sdk"; }
  std::uint32_t start_process(const std::string&) override {
    write_bytes(temporary_folder() + "/out.000", answer);
    return 1;
  }
};

bool is_sound(const Solution& solution) {
  return solution.digits.size() == 81 &&
         solution.digits.find_first_not_of("123456789") == std::string::npos;
}

bool is_sound(const NoSolution&) { return true; }

bool is_sound(const MissingDigit& fault) {
  return fault.cell() <= 81 &&
         fault.digits_before.find_first_not_of("123456789") == std::string::npos;
}

void require_sound_answer(std::string_view output) {
  const std::optional<std::string_view> line = first_line(output);
  if (line.has_value() == output.empty()) std::abort();
  if (!line) return;
  const SolverAnswer answer = solver_answer(std::string(*line));
  if (!std::visit([](const auto& found) { return is_sound(found); }, answer)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static AnsweringDesktop desktop;
  desktop.answer = {reinterpret_cast<const char*>(data), size};
  require_sound_answer(desktop.answer);
  MainWindow window(desktop);
  const auto start_and_solve = [&] {
    window.start(desktop.puzzle_file());
    window.finish_start();
    window.click(Control::Bouton_GO);
  };
  goes_on_after(start_and_solve, window, desktop);
  return 0;
}
