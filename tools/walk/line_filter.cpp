// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/line_filter.hpp"

#include <cerrno>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace sdk {

namespace {

/// Lines that are processed together, so that threads seldom meet.
struct Batch {
  long index, first_line;
  std::vector<std::string> lines;
};

constexpr std::size_t batch_size = 64;
/// How far a thread may run ahead of what is written.
constexpr long batches_ahead = 4;

Processed process_all(const Batch& batch, const ProcessLine& process) {
  Processed all;
  long number = batch.first_line;
  for (const std::string& line : batch.lines) {
    const Processed one = process(line, number++);
    all.output += one.output;
    all.errors += one.errors;
    all.is_fault |= one.is_fault;
  }
  return all;
}

class LineFilter {
 public:
  LineFilter(std::istream& in, std::ostream& out, std::ostream& errors, int threads)
      : in_(in), out_(out), errors_(errors), threads_(threads) {}

  FilterEnd run(const ProcessLine& process) {
    std::vector<std::jthread> others;
    for (int n = 1; n < threads_; ++n) others.emplace_back([&] { work(process); });
    work(process);
    others.clear();
    return end_;
  }

 private:
  void work(const ProcessLine& process) {
    while (const std::optional<Batch> batch = take())
      deliver(batch->index, process_all(*batch, process));
  }

  /// The next lines; nothing at the end of the input.
  std::optional<Batch> take() {
    const std::scoped_lock reading(input_);
    wait_for_room();
    Batch batch{taken_, lines_read_ + 1, {}};
    for (std::string line; !has_failed() && std::getline(in_, line);) {
      batch.lines.push_back(std::move(line));
      if (batch.lines.size() == batch_size || in_.rdbuf()->in_avail() <= 0) break;
    }
    if (batch.lines.empty()) return std::nullopt;
    ++taken_;
    lines_read_ += static_cast<long>(batch.lines.size());
    return batch;
  }

  void wait_for_room() {
    std::unique_lock writing(output_);
    room_.wait(writing, [&] { return taken_ < written_ + batches_ahead * threads_; });
  }

  void deliver(long index, Processed processed) {
    const std::scoped_lock writing(output_);
    waiting_.emplace(index, std::move(processed));
    for (auto first = waiting_.begin(); first != waiting_.end() && first->first == written_;
         first = waiting_.erase(first)) {
      write(first->second);
      ++written_;
    }
    room_.notify_all();
  }

  void write(const Processed& processed) {
    errno = 0;
    out_ << processed.output << std::flush;
    if (!out_ && end_.failure.empty()) end_.failure = std::generic_category().message(errno);
    errors_ << processed.errors << std::flush;
    end_.had_faults |= processed.is_fault;
  }

  bool has_failed() {
    const std::scoped_lock writing(output_);
    return !end_.failure.empty();
  }

  std::istream& in_;
  std::ostream& out_;
  std::ostream& errors_;
  const int threads_;

  std::mutex input_;  ///< held by the thread that reads, and guards the next two
  long taken_ = 0, lines_read_ = 0;

  std::mutex output_;  ///< guards all that follows
  std::condition_variable room_;
  std::map<long, Processed> waiting_;  ///< by batch: done before its turn
  long written_ = 0;
  FilterEnd end_;
};

}  // namespace

FilterEnd filter_lines(std::istream& in, std::ostream& out, std::ostream& errors, int threads,
                       const ProcessLine& process) {
  return LineFilter(in, out, errors, threads).run(process);
}

}  // namespace sdk
