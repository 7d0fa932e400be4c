// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/files/failing_steps.hpp"

#include <fstream>

namespace sdk::test {

namespace fs = std::filesystem;

bool FailingSteps::fails(FailsAt step, const fs::path& file) const {
  return step == step_ && file.parent_path() == folder_;
}

void FailingSteps::fail(const fs::path& file) const {
  throw fs::filesystem_error("made to fail", file, std::make_error_code(error_));
}

void FailingSteps::write_new(const fs::path& file, std::string_view bytes) {
  if (fails(FailsAt::create, file)) fail(file);
  if (!fails(FailsAt::write, file)) return SaveSteps::write_new(file, bytes);
  SaveSteps::write_new(file, bytes.substr(0, bytes.size() / 2));
  fail(file);
}

void FailingSteps::write_in_place(const fs::path& file, std::string_view bytes) {
  ++writes_in_place;
  if (!fails(FailsAt::in_place, file)) return SaveSteps::write_in_place(file, bytes);
  std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
  stream << bytes.substr(0, bytes.size() / 2) << std::flush;
  fail(file);
}

void FailingSteps::rename(const fs::path& from, const fs::path& to) {
  if (fails(FailsAt::rename, to)) fail(to);
  SaveSteps::rename(from, to);
}

}  // namespace sdk::test
