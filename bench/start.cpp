// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Starts the game and a program with one empty window of the same size in turn, many times, and
// says how long each takes until it is painted, and how much memory it then holds; then how much
// processor time the game takes while nobody touches it.

#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "bench/virtual_screen.hpp"
#include "screen/colours.hpp"
#include "tools/command_line/command_line.hpp"

namespace sdk::bench {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// A program, and the colour (0xRRGGBB) that tells that its window is painted.
struct Subject {
  std::string path;
  std::uint32_t colour;
};

constexpr int painted_pixels = 10000;

struct Measured {
  double start_ms;
  double processor_ms;  ///< the part of it spent computing, in the program itself
  double resident_mb;
};

pid_t launch(const std::string& path) {
  const pid_t process = fork();
  if (process == 0) {
    execl(path.c_str(), path.c_str(), nullptr);
    _exit(127);
  }
  return process;
}

void wait_until_painted(const VirtualScreen& screen, const Subject& subject) {
  const auto deadline = Clock::now() + std::chrono::seconds(30);
  while (screen.pixels_of(subject.colour) < painted_pixels) {
    if (Clock::now() > deadline) throw std::runtime_error(subject.path + " showed no window");
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
}

void end(pid_t process, const VirtualScreen& screen, const Subject& subject) {
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
  while (screen.pixels_of(subject.colour) >= painted_pixels)
    std::this_thread::sleep_for(milliseconds(5));
}

double resident_mb(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;)
    if (double kilobytes; word == "VmRSS:" && status >> kilobytes) return kilobytes / 1024;
  throw std::runtime_error("no resident memory is known of the program");
}

/// Processor time of all the program's threads so far, to the nanosecond.
double processor_ms(pid_t process) {
  clockid_t clock;
  timespec time;
  if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0)
    throw std::runtime_error("no processor time is known of the program");
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

Measured measure(const VirtualScreen& screen, const Subject& subject) {
  const auto begin = Clock::now();
  const pid_t process = launch(subject.path);
  wait_until_painted(screen, subject);
  const double start_ms = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  const double used_ms = processor_ms(process);
  std::this_thread::sleep_for(milliseconds(500));
  const Measured measured{start_ms, used_ms, resident_mb(process)};
  end(process, screen, subject);
  return measured;
}

double idle_processor_ms(const VirtualScreen& screen, const Subject& subject) {
  const pid_t process = launch(subject.path);
  wait_until_painted(screen, subject);
  std::this_thread::sleep_for(std::chrono::seconds(2));
  const double before = processor_ms(process);
  std::this_thread::sleep_for(std::chrono::seconds(10));
  const double used = processor_ms(process) - before;
  end(process, screen, subject);
  return used;
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

void report(const char* what, double Measured::*figure, const std::vector<Measured>& game,
            const std::vector<Measured>& empty) {
  std::vector<double> games, empties, ratios;
  for (std::size_t i = 0; i < game.size(); ++i) {
    games.push_back(game[i].*figure);
    empties.push_back(empty[i].*figure);
    ratios.push_back(games.back() / empties.back());
  }
  const auto [least, most] = std::ranges::minmax(ratios);
  std::printf("%-22s game %7.1f   empty window %7.1f   ratio %.3f (%.3f to %.3f)\n", what,
              median(games), median(empties), median(ratios), least, most);
}

void compare(const VirtualScreen& screen, const Subject& game, const Subject& empty, int pairs) {
  measure(screen, game);
  measure(screen, empty);
  std::vector<Measured> games, empties;
  for (int i = 0; i < pairs; ++i) {
    games.push_back(measure(screen, game));
    empties.push_back(measure(screen, empty));
  }
  std::printf("Medians of %d pairs, after one that is not counted; ratios pair by pair.\n", pairs);
  report("start to painted, ms", &Measured::start_ms, games, empties);
  report("  of it computing, ms", &Measured::processor_ms, games, empties);
  report("resident memory, MB", &Measured::resident_mb, games, empties);
}

/// Colours of the program have blue in the highest byte.
std::uint32_t rgb(Colour bgr) { return (bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF); }

int run(const std::filesystem::path& programs, int pairs) {
  const VirtualScreen screen;
  setenv("DISPLAY", screen.name().c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  const Subject game{programs / "sudoku", rgb(colour::level[1])};
  const Subject empty{programs / "empty_window", rgb(colour::white)};
  compare(screen, game, empty, pairs);
  std::printf("idle for 10 s, ms of processor time: game %.3f\n", idle_processor_ms(screen, game));
  return 0;
}

}  // namespace
}  // namespace sdk::bench

int main(int argc, char** argv) {
  int pairs = 15;
  sdk::CommandLine line;
  line.add_option("PAIRS", pairs)->transform(sdk::whole_number(1));
  if (!line.read(argc, argv)) return std::fprintf(stderr, "usage: bench_start [PAIRS]\n"), 2;
  try {
    return sdk::bench::run(std::filesystem::read_symlink("/proc/self/exe").parent_path(), pairs);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
