// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Saving that never destroys the file that was there.
#pragma once

#include <filesystem>
#include <string_view>

namespace sdk {

/// The steps of a save that can fail, one call each. Failures are std::system_error.
class SaveSteps {
 public:
  virtual ~SaveSteps() = default;
  /// Writes a file that must not exist yet.
  virtual void write_new(const std::filesystem::path& file, std::string_view bytes);
  /// Writes into a file that exists and gives it the new length.
  virtual void write_in_place(const std::filesystem::path& file, std::string_view bytes);
  /// Gives `from` the name `to`, in place of what had it.
  virtual void rename(const std::filesystem::path& from, const std::filesystem::path& to);
};

/// Makes `bytes` the whole content of `file`, through a new file beside it that takes its name once
/// it is complete. Links and access rights of a file that was there are kept; where its folder
/// takes no new file, or the file has other names, it is written in place. Throws RuntimeError
/// naming `file`; the file that was there is then as it was.
void replace_file(const std::filesystem::path& file, std::string_view bytes, SaveSteps& steps);

}  // namespace sdk
