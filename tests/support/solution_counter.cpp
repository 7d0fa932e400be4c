// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/solution_counter.hpp"

#include <array>
#include <bit>

namespace sdk::test {

namespace {

/// Always fills the empty cell with the fewest digits left.
class Counter {
 public:
  Counter(std::string_view puzzle, int limit) : limit_(limit), digits_(puzzle) {
    for (std::size_t k = 0; k < 81; ++k)
      if (puzzle[k] >= '1' && puzzle[k] <= '9') flip(k, 1u << (puzzle[k] - '1'));
  }

  int count() {
    fill();
    return found_;
  }

  /// The one found last.
  const std::string& solution() const { return solution_; }

 private:
  static std::size_t box(std::size_t k) { return k / 27 * 3 + k % 9 / 3; }

  unsigned free_digits(std::size_t k) const {
    return 0x1FF & ~(rows_[k / 9] | columns_[k % 9] | boxes_[box(k)]);
  }

  void flip(std::size_t k, unsigned digit) {
    rows_[k / 9] ^= digit;
    columns_[k % 9] ^= digit;
    boxes_[box(k)] ^= digit;
    filled_[k] = !filled_[k];
  }

  std::size_t narrowest() const {
    std::size_t best = 81;
    int fewest = 10;
    for (std::size_t k = 0; k < 81; ++k) {
      if (filled_[k]) continue;
      const int left = std::popcount(free_digits(k));
      if (left >= fewest) continue;
      fewest = left;
      best = k;
    }
    return best;
  }

  void fill() {
    const std::size_t k = narrowest();
    if (k == 81) {
      ++found_;
      solution_ = digits_;
      return;
    }
    for (unsigned left = free_digits(k); left != 0 && found_ < limit_; left &= left - 1) {
      const unsigned digit = left & -left;
      digits_[k] = static_cast<char>('1' + std::countr_zero(digit));
      flip(k, digit);
      fill();
      flip(k, digit);
    }
  }

  std::array<unsigned, 9> rows_{}, columns_{}, boxes_{};
  std::array<bool, 81> filled_{};
  int limit_;
  int found_ = 0;
  std::string digits_, solution_;
};

}  // namespace

int solution_count(std::string_view puzzle, int limit) { return Counter(puzzle, limit).count(); }

std::string only_solution(std::string_view puzzle) {
  Counter counter(puzzle, 2);
  return counter.count() == 1 ? counter.solution() : "";
}

}  // namespace sdk::test
