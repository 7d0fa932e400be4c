// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/line_filter.hpp"

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace sdk {

namespace {

/// Items that are processed together, so that threads seldom meet.
struct Batch {
  long index, first_number;
  std::vector<std::string> items;
};

constexpr std::size_t batch_size = 16;
/// How far a thread may run ahead of what is written.
constexpr long batches_ahead = 16;

Processed process_all(const Batch& batch, const ProcessItem& process) {
  Processed all;
  long number = batch.first_number;
  for (const std::string& item : batch.items) {
    const Processed one = process(item, number++);
    all.output += one.output;
    all.errors += one.errors;
    all.is_fault |= one.is_fault;
  }
  return all;
}

std::string in_words(int error) { return std::generic_category().message(error); }

/// Hands out lines as soon as they are there, without waiting for the rest of the next one.
class LineReader {
 public:
  explicit LineReader(std::istream& in) : in_(in) {}

  /// Up to `most` lines; waits only for the first one. None at the end of the input.
  std::vector<std::string> take(std::size_t most) {
    std::vector<std::string> lines;
    while (lines.size() < most && has_line(lines.empty())) lines.push_back(take_line());
    return lines;
  }

  /// Why reading broke off; empty at an end without a failure.
  const std::string& failure() const { return failure_; }

 private:
  /// A whole line has been read, or what is left before the end is one.
  bool has_line(bool may_wait) {
    while (text_.find('\n', at_) == text_.npos)
      if (!may_wait || !read_more()) return may_wait && at_ < text_.size();
    return true;
  }

  std::string take_line() {
    const std::size_t end = std::min(text_.find('\n', at_), text_.size());
    std::string line = text_.substr(at_, end - at_);
    at_ = std::min(end + 1, text_.size());
    return line;
  }

  /// Waits for input, and takes all that is there then.
  bool read_more() {
    const bool is_there = in_.peek() != std::istream::traits_type::eof();
    if (in_.bad()) failure_ = "standard input: " + in_words(EIO);
    if (!is_there) return false;
    text_.erase(0, std::exchange(at_, 0));
    const std::size_t before = text_.size();
    text_.resize(before +
                 static_cast<std::size_t>(std::max<std::streamsize>(1, in_.rdbuf()->in_avail())));
    in_.read(text_.data() + before, static_cast<std::streamsize>(text_.size() - before));
    return true;
  }

  std::istream& in_;
  std::string text_;  ///< read, and handed out up to here:
  std::size_t at_ = 0;
  std::string failure_;
};

/// Up to `most` of the next items, none at their end. Called by one thread at a time.
using TakeItems = std::function<std::vector<std::string>(std::size_t most)>;

class Filter {
 public:
  Filter(TakeItems take_items, std::ostream& out, std::ostream& errors, int threads)
      : take_items_(std::move(take_items)), out_(out), errors_(errors), threads_(threads) {}

  FilterEnd run(const ProcessItem& process) {
    std::vector<std::jthread> others;
    try {
      for (int n = 1; n < threads_; ++n) others.emplace_back([&] { work(process); });
    } catch (const std::system_error&) {
      // The system grants no more threads; those that there are do all the work.
    }
    work(process);
    others.clear();
    return end_;
  }

 private:
  void work(const ProcessItem& process) {
    while (const std::optional<Batch> batch = take())
      deliver(batch->index, process_all(*batch, process));
  }

  /// The next items; nothing at their end.
  std::optional<Batch> take() {
    const std::scoped_lock reading(input_);
    wait_for_room();
    if (has_failed()) return std::nullopt;
    Batch batch{taken_, items_taken_ + 1, take_items_(batch_size)};
    if (batch.items.empty()) return std::nullopt;
    ++taken_;
    items_taken_ += static_cast<long>(batch.items.size());
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
    if (!out_ && end_.failure.empty()) end_.failure = "standard output: " + in_words(errno);
    errors_ << processed.errors << std::flush;
    end_.had_faults |= processed.is_fault;
  }

  bool has_failed() {
    const std::scoped_lock writing(output_);
    return !end_.failure.empty();
  }

  const TakeItems take_items_;
  std::ostream& out_;
  std::ostream& errors_;
  const int threads_;

  std::mutex input_;  ///< held by the thread that takes, and guards the next two
  long taken_ = 0, items_taken_ = 0;

  std::mutex output_;  ///< guards all that follows
  std::condition_variable room_;
  std::map<long, Processed> waiting_;  ///< by batch: done before its turn
  long written_ = 0;
  FilterEnd end_;
};

}  // namespace

FilterEnd filter_lines(std::istream& in, std::ostream& out, std::ostream& errors, int threads,
                       const ProcessItem& process) {
  LineReader reader(in);
  const auto take = [&](std::size_t most) { return reader.take(most); };
  FilterEnd end = Filter(take, out, errors, threads).run(process);
  if (end.failure.empty()) end.failure = reader.failure();
  return end;
}

FilterEnd filter_items(std::span<const std::string> items, std::ostream& out, std::ostream& errors,
                       int threads, const ProcessItem& process) {
  const auto take = [&](std::size_t most) {
    const auto next = items.first(std::min(most, items.size()));
    items = items.subspan(next.size());
    return std::vector<std::string>(next.begin(), next.end());
  };
  return Filter(take, out, errors, threads).run(process);
}

}  // namespace sdk
