// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/safe_write.hpp"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "files/platform.hpp"
#include "screen/errors.hpp"

namespace sdk {

namespace fs = std::filesystem;

void SaveSteps::write_new(const fs::path& file, std::string_view bytes) {
  platform::write_new_file(file, bytes);
}

void SaveSteps::write_in_place(const fs::path& file, std::string_view bytes) {
  errno = 0;
  std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
  stream << bytes << std::flush;
  if (!stream) throw std::system_error(errno, std::generic_category(), file.string());
  stream.close();
  if (fs::is_regular_file(file)) fs::resize_file(file, bytes.size());
}

void SaveSteps::rename(const fs::path& from, const fs::path& to) { fs::rename(from, to); }

namespace {

/// The file that a chain of links ends at, so that saving through a link keeps the link.
fs::path real_file(fs::path file) {
  constexpr int longest_chain = 40;
  for (int i = 0; i < longest_chain && fs::is_symlink(file); ++i)
    file = file.parent_path() / fs::read_symlink(file);
  return file;
}

/// Devices do, and files that have other names.
bool must_stay_itself(const fs::path& file) {
  return !fs::is_regular_file(file) || fs::hard_link_count(file) > 1;
}

/// Short, so that it is no longer than a folder takes even where the file's own name is.
fs::path unused_neighbour(const fs::path& file) {
  for (int n = 1;; ++n) {
    fs::path neighbour = file.parent_path() / ("SuDoKu-" + std::to_string(n) + ".new");
    if (!fs::exists(fs::symlink_status(neighbour))) return neighbour;
  }
}

/// Removes a half-made neighbour unless it took the file's name.
class Neighbour {
 public:
  explicit Neighbour(fs::path file) : path(std::move(file)) {}
  ~Neighbour() {
    std::error_code ignored;
    fs::remove(path, ignored);
  }
  Neighbour(const Neighbour&) = delete;
  Neighbour& operator=(const Neighbour&) = delete;

  const fs::path path;
};

bool folder_is_closed(const std::error_code& code) {
  return code == std::errc::permission_denied || code == std::errc::read_only_file_system ||
         code == std::errc::operation_not_permitted;
}

void replace_by_neighbour(const fs::path& file, std::string_view bytes, SaveSteps& steps) {
  const Neighbour neighbour(unused_neighbour(file));
  steps.write_new(neighbour.path, bytes);
  if (fs::exists(file)) platform::copy_access(file, neighbour.path);
  steps.rename(neighbour.path, file);
}

/// What a write of `length` bytes would take from a file.
std::string beginning(const fs::path& file, std::size_t length) {
  std::string bytes(length, '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(bytes.data(), static_cast<std::streamsize>(length));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

void put_back(const fs::path& file, const std::string& beginning, std::uintmax_t size) {
  std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
  stream << beginning << std::flush;
  std::error_code ignored;
  fs::resize_file(file, size, ignored);
}

void overwrite(const fs::path& file, std::string_view bytes, SaveSteps& steps) {
  if (!fs::is_regular_file(file)) return steps.write_in_place(file, bytes);
  const std::string before = beginning(file, bytes.size());
  const std::uintmax_t size = fs::file_size(file);
  try {
    steps.write_in_place(file, bytes);
  } catch (const std::system_error&) {
    put_back(file, before, size);
    throw;
  }
}

void write(const fs::path& file, std::string_view bytes, SaveSteps& steps) {
  if (!fs::exists(file)) return replace_by_neighbour(file, bytes, steps);
  if (must_stay_itself(file)) return overwrite(file, bytes, steps);
  platform::require_writable(file);
  try {
    replace_by_neighbour(file, bytes, steps);
  } catch (const std::system_error& error) {
    if (!folder_is_closed(error.code())) throw;
    overwrite(file, bytes, steps);
  }
}

}  // namespace

void replace_file(const fs::path& file, std::string_view bytes, SaveSteps& steps) {
  try {
    write(real_file(file), bytes, steps);
  } catch (const std::system_error& error) {
    throw RuntimeError(file.string(), error.code().message());
  }
}

}  // namespace sdk
