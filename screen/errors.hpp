// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The failures that leave a procedure by an exception.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace sdk {

/// What could not be done with a file, the printer or a process. Nobody below the window's commands
/// catches it but the solve command; the window ends the program on it, after saving the grid.
class RuntimeError : public std::runtime_error {
 public:
  /// `object` is the file or device that failed, `reason` the system's own words.
  RuntimeError(std::string object, const std::string& reason)
      : std::runtime_error(object + ": " + reason), object_(std::move(object)) {}

  const std::string& object() const { return object_; }

 private:
  std::string object_;
};

/// Thrown to end the program at once with `status`, from however deep. Only a front end's outermost
/// handler catches it.
struct ProgramEnd {
  int status;
};

}  // namespace sdk
