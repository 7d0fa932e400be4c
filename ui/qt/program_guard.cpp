// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/program_guard.hpp"

#include <QCoreApplication>

#include "screen/errors.hpp"

namespace sdk {

void ProgramGuard::run(const std::function<void()>& handler) {
  if (status_) return;
  try {
    handler();
  } catch (const ProgramEnd& end) {
    status_ = end.status;
    QCoreApplication::exit(end.status);
  }
}

void ProgramGuard::rethrow() const {
  if (status_) throw ProgramEnd{*status_};
}

}  // namespace sdk
