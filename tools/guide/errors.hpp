// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <stdexcept>

namespace sdk {

/// What is wrong with a guide, for whoever builds it.
struct GuideError : std::runtime_error {
  explicit GuideError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

}  // namespace sdk
