// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What differs from one operating system to the next: processes, folders and the environment.
/// One source file a platform implements it. Failures are std::system_error unless told otherwise.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace sdk::platform {

/// The folder of the running program's real file, links followed.
std::filesystem::path program_folder();

/// The folder in which programs keep what is the player's; it need not exist.
std::filesystem::path data_home();

/// Makes a new folder that only the player can enter, below the system's temporary folder.
std::filesystem::path make_private_folder();

void set_environment(const std::string& name, const std::string& value);

/// The command line that runs the external solver of the current folder with its standard output
/// in the file `output`, whatever characters the path holds.
std::string solver_command(const std::filesystem::path& output);

/// Starts a command line through the system's command interpreter, without waiting and without an
/// input to read; the result identifies the process and is not 0.
std::uint32_t start_process(const std::string& command_line);

/// The exit code of a process that start_process began; 259 while it runs. A process that has ended
/// is reported once and is forgotten then; nothing for a process that is not known.
std::optional<std::uint32_t> collect_exit_code(std::uint32_t id);

/// The descriptor of a pipe that is given one byte whenever the system or the player tells the
/// program to end by SIGTERM, SIGHUP or SIGINT: the signal's number. The same signal coming again
/// ends the program at once, as it does when this was never called. One call at most.
int open_end_signals();

/// "SIGTERM" and the like; "signal 3" for a number that open_end_signals does not give.
std::string signal_name(int number);

/// Writes a file that must not exist yet; its bytes are on the disk when the call returns.
void write_new_file(const std::filesystem::path& file, std::string_view bytes);

/// Whether the player may read the file; false when there is none.
bool may_read(const std::filesystem::path& file);

/// Whether the player may write the file or, in a folder, make files; false when there is none.
bool may_write(const std::filesystem::path& file_or_folder);

/// Fails for a file that the player may not write into.
void require_writable(const std::filesystem::path& file);

/// Gives `to` the owner, group and rights of `from`.
void copy_access(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace sdk::platform
