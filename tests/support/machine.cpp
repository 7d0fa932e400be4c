// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/machine.hpp"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace sdk::test {

namespace fs = std::filesystem;

namespace {

void set(const std::string& name, const std::optional<std::string>& value) {
  if (value)
    setenv(name.c_str(), value->c_str(), 1);
  else
    unsetenv(name.c_str());
}

}  // namespace

Variable::Variable(std::string name, const std::optional<std::string>& value)
    : name_(std::move(name)) {
  if (const char* before = std::getenv(name_.c_str())) before_ = before;
  set(name_, value);
}

Variable::~Variable() { set(name_, before_); }

PlainUser::PlainUser() : was_root_(geteuid() == 0) {
  constexpr uid_t nobody = 65534;
  if (was_root_ && (setegid(nobody) != 0 || seteuid(nobody) != 0))
    throw std::runtime_error("root cannot become nobody");
}

PlainUser::~PlainUser() {
  if (was_root_ && (seteuid(0) != 0 || setegid(0) != 0)) std::abort();
}

namespace {

void limit_files(rlim_t bytes) {
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = std::min(bytes, limit.rlim_max);
  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("no limit for files");
}

}  // namespace

FileLimit::FileLimit(std::size_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  limit_files(bytes);
}

FileLimit::~FileLimit() {
  limit_files(RLIM_INFINITY);
  std::signal(SIGXFSZ, SIG_DFL);
}

unsigned rights_of(const fs::path& file) {
  return static_cast<unsigned>(fs::status(file).permissions()) & 0777u;
}

}  // namespace sdk::test
