// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "bench/virtual_screen.hpp"

#include <arpa/inet.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <system_error>

namespace sdk::bench {

namespace {

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

std::filesystem::path new_folder() {
  std::string name = std::filesystem::temp_directory_path() / "sudoku-screen-XXXXXX";
  if (!mkdtemp(name.data())) fail("mkdtemp");
  return name;
}

/// The number that the server writes once it is ready; empty when it ends without one.
std::string line_from(int pipe) {
  std::string line;
  for (char c; read(pipe, &c, 1) == 1 && c != '\n';) line += c;
  return line;
}

}  // namespace

VirtualScreen::VirtualScreen() : folder_(new_folder()) {
  int ends[2];
  if (pipe(ends) != 0) fail("pipe");
  const std::string number = std::to_string(ends[1]);
  server_ = fork();
  if (server_ < 0) fail("fork");
  if (server_ == 0) {
    execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1024x768x24", "-fbdir",
           folder_.c_str(), "-nolisten", "tcp", "-noreset", nullptr);
    _exit(127);
  }
  close(ends[1]);
  name_ = line_from(ends[0]);
  close(ends[0]);
  if (name_.empty()) throw std::runtime_error("Xvfb did not start");
  name_.insert(0, ":");
  map_pixels();
}

// The server keeps its screen in a file of the XWD format: a header of big-endian words, the
// colour map, then the pixels in the machine's own order.
void VirtualScreen::map_pixels() {
  const std::filesystem::path path = folder_ / "Xvfb_screen0";
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) fail(path.c_str());
  const std::size_t size = std::filesystem::file_size(path);
  void* start = mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
  close(file);
  if (start == MAP_FAILED) fail("mmap");
  file_ = {static_cast<const std::uint32_t*>(start), size / 4};

  constexpr std::size_t header_size = 0, height = 5, bytes_per_line = 12, colours = 19;
  constexpr std::size_t colour_size = 12;
  const auto word = [this](std::size_t index) -> std::size_t { return ntohl(file_[index]); };
  pixels_ = file_.subspan((word(header_size) + word(colours) * colour_size) / 4,
                          word(bytes_per_line) * word(height) / 4);
}

VirtualScreen::~VirtualScreen() {
  munmap(const_cast<std::uint32_t*>(file_.data()), file_.size_bytes());
  kill(server_, SIGTERM);
  waitpid(server_, nullptr, 0);
  std::filesystem::remove_all(folder_);
}

int VirtualScreen::pixels_of(std::uint32_t colour) const {
  constexpr std::size_t stride = 16;
  int count = 0;
  for (std::size_t i = 0; i < pixels_.size(); i += stride)
    count += (pixels_[i] & 0xFFFFFF) == colour;
  return count * static_cast<int>(stride);
}

}  // namespace sdk::bench
