// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include "files/platform.hpp"

extern char** environ;

namespace sdk::platform {

namespace {

[[noreturn]] void fail(int error, const std::string& what) {
  throw std::system_error(error, std::generic_category(), what);
}

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

}  // namespace

std::filesystem::path program_folder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

std::filesystem::path data_home() {
  if (const char* folder = std::getenv("XDG_DATA_HOME"); folder && *folder) return folder;
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home ? home : "") / ".local" / "share";
}

std::filesystem::path make_private_folder() {
  std::string name = (std::filesystem::temp_directory_path() / "sudoku-XXXXXX").string();
  if (!mkdtemp(name.data())) fail(errno, name);
  return name;
}

void set_environment(const std::string& name, const std::string& value) {
  if (setenv(name.c_str(), value.c_str(), 1) != 0) fail(errno, name);
}

std::string solver_command(const std::filesystem::path& output) {
  return "./zolv.exe >" + quoted(output.string());
}

std::uint32_t start_process(const std::string& command_line) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  std::string shell = "/bin/sh", option = "-c", command = command_line;
  char* const arguments[] = {shell.data(), option.data(), command.data(), nullptr};
  pid_t id = 0;
  const int error = posix_spawn(&id, shell.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) fail(error, command_line);
  return static_cast<std::uint32_t>(id);
}

std::optional<std::uint32_t> collect_exit_code(std::uint32_t id) {
  constexpr std::uint32_t still_active = 259, killed_by_signal = 128;
  int status = 0;
  const pid_t ended = waitpid(static_cast<pid_t>(id), &status, WNOHANG);
  if (ended < 0) return std::nullopt;
  if (ended == 0) return still_active;
  if (WIFSIGNALED(status)) return killed_by_signal + static_cast<std::uint32_t>(WTERMSIG(status));
  return static_cast<std::uint32_t>(WEXITSTATUS(status));
}

namespace {

/// A file descriptor that closes itself.
class Descriptor {
 public:
  Descriptor(const std::filesystem::path& file, int flags)
      : fd_(open(file.c_str(), O_WRONLY | O_CLOEXEC | flags, 0666)) {
    if (fd_ < 0) fail(errno, file.string());
  }
  ~Descriptor() { close(fd_); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  void write_all(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = write(fd_, bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) fail(errno, "write");
      bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
  }
  void sync() {
    if (fsync(fd_) != 0) fail(errno, "fsync");
  }

 private:
  int fd_;
};

}  // namespace

namespace {

struct EndSignal {
  int number;
  const char* name;
};

constexpr std::array<EndSignal, 3> end_signals{
    {{SIGTERM, "SIGTERM"}, {SIGHUP, "SIGHUP"}, {SIGINT, "SIGINT"}}};

/// The end that the handler writes to, which may do little else.
int end_signal_writer = -1;

void tell_end_signal(int number) {
  const int error = errno;
  const auto byte = static_cast<unsigned char>(number);
  [[maybe_unused]] const ssize_t written = write(end_signal_writer, &byte, 1);
  errno = error;
}

}  // namespace

int open_end_signals() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) fail(errno, "pipe");
  end_signal_writer = ends[1];
  struct sigaction action = {};
  action.sa_handler = tell_end_signal;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const EndSignal& signal : end_signals) sigaction(signal.number, &action, nullptr);
  return ends[0];
}

std::string signal_name(int number) {
  for (const EndSignal& signal : end_signals)
    if (signal.number == number) return signal.name;
  return "signal " + std::to_string(number);
}

void write_new_file(const std::filesystem::path& file, std::string_view bytes) {
  Descriptor descriptor(file, O_CREAT | O_EXCL);
  descriptor.write_all(bytes);
  descriptor.sync();
}

void require_writable(const std::filesystem::path& file) { Descriptor(file, 0); }

namespace {

/// Asked for the rights that opening a file would have.
bool may(const std::filesystem::path& file, int access) {
  return faccessat(AT_FDCWD, file.c_str(), access, AT_EACCESS) == 0;
}

}  // namespace

bool may_read(const std::filesystem::path& file) { return may(file, R_OK); }

bool may_write(const std::filesystem::path& file_or_folder) {
  std::error_code unseen;
  const bool is_folder = std::filesystem::is_directory(file_or_folder, unseen);
  return may(file_or_folder, is_folder ? W_OK | X_OK : W_OK);
}

void copy_access(const std::filesystem::path& from, const std::filesystem::path& to) {
  struct stat before, after;
  if (stat(from.c_str(), &before) != 0 || stat(to.c_str(), &after) != 0) fail(errno, from.string());
  const bool same_owner = before.st_uid == after.st_uid && before.st_gid == after.st_gid;
  if (!same_owner && chown(to.c_str(), before.st_uid, before.st_gid) != 0) fail(errno, to.string());
  if (chmod(to.c_str(), before.st_mode & 07777) != 0) fail(errno, to.string());
}

}  // namespace sdk::platform
