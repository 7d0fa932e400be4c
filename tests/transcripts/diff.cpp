// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/transcripts/diff.hpp"

#include <algorithm>

namespace sdk {

namespace {

using Lines = std::vector<std::string>;

struct Edit {
  char sign;  ///< ' ' in both, '-' only before, '+' only after
  std::string line;
  std::size_t number;  ///< of the next line before, from 1
};

/// common[i][j]: the length of the longest common subsequence of before[i..] and after[j..].
std::vector<std::vector<int>> common_lengths(const Lines& before, const Lines& after) {
  std::vector<std::vector<int>> common(before.size() + 1, std::vector<int>(after.size() + 1));
  for (std::size_t i = before.size(); i-- > 0;)
    for (std::size_t j = after.size(); j-- > 0;)
      common[i][j] = before[i] == after[j] ? common[i + 1][j + 1] + 1
                                           : std::max(common[i + 1][j], common[i][j + 1]);
  return common;
}

std::vector<Edit> edits(const Lines& before, const Lines& after) {
  const auto common = common_lengths(before, after);
  std::vector<Edit> result;
  std::size_t i = 0, j = 0;
  while (i < before.size() || j < after.size()) {
    if (i < before.size() && j < after.size() && before[i] == after[j]) {
      result.push_back({' ', before[i], i + 1});
      ++i, ++j;
    } else if (i < before.size() && (j == after.size() || common[i + 1][j] >= common[i][j + 1])) {
      result.push_back({'-', before[i], i + 1});
      ++i;
    } else {
      result.push_back({'+', after[j++], i + 1});
    }
  }
  return result;
}

/// Whether edit `k` is a change or stands beside one.
bool is_near_change(const std::vector<Edit>& all, std::size_t k) {
  constexpr std::size_t context = 3;
  const std::size_t first = k > context ? k - context : 0;
  const std::size_t last = std::min(k + context + 1, all.size());
  return std::any_of(all.begin() + static_cast<std::ptrdiff_t>(first),
                     all.begin() + static_cast<std::ptrdiff_t>(last),
                     [](const Edit& edit) { return edit.sign != ' '; });
}

}  // namespace

std::string diff(const Lines& before, const Lines& after) {
  const std::vector<Edit> all = edits(before, after);
  std::string text;
  bool printing = false;
  for (std::size_t k = 0; k < all.size(); ++k) {
    const bool near = is_near_change(all, k);
    if (near && !printing) text += "@@ line " + std::to_string(all[k].number) + " @@\n";
    if (near) text += all[k].sign + all[k].line + '\n';
    printing = near;
  }
  return text;
}

}  // namespace sdk
