// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/fake_desktop.hpp"

#include <system_error>

#include "screen/errors.hpp"

namespace sdk::test {

namespace fs = std::filesystem;

namespace {

template <class T>
T take_first(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Box& box) {
  static constexpr const char* icons[] = {"none", "exclamation", "critical", "question"};
  return out << "box " << icons[static_cast<int>(box.icon)] << " \"" << box.title << "\" \""
             << box.text << "\" " << (box.buttons == Buttons::ok ? "ok" : "yes,no");
}

FakeDesktop::FakeDesktop() {
  for (const char* name : {"data", "program", "tmp"}) fs::create_directory(scratch_ / name);
}

void FakeDesktop::forget() {
  boxes.clear();
  filters.clear();
  pointers.clear();
  clipboard.clear();
  prints.clear();
  errors.clear();
  opened.clear();
  steps = 0;
}

std::string FakeDesktop::rescued_file() const {
  const fs::directory_iterator first(scratch_ / "data");
  if (first == fs::directory_iterator()) throw std::runtime_error("no file was saved");
  return bytes_of(first->path());
}

Answer FakeDesktop::message_box(const std::string& text, Icon icon, Buttons buttons,
                                const std::string& title) {
  boxes.push_back({text, icon, buttons, title});
  at_box(Box(boxes.back()));
  return buttons == Buttons::ok ? Answer::ok : take_first(answers, Answer::no);
}

std::string FakeDesktop::next_file(const std::string& filter) {
  filters.push_back(filter);
  return take_first(chosen, std::string());
}

std::string FakeDesktop::open_dialog(const std::string& filter) { return next_file(filter); }

std::string FakeDesktop::save_dialog(const std::string& filter) { return next_file(filter); }

void FakeDesktop::set_pointer(Pointer shape) { pointers.push_back(shape); }

void FakeDesktop::let_events_run() {
  ++steps;
  if (at_step.empty() || at_step.begin()->first != steps) return;
  const auto event = std::move(at_step.begin()->second);
  at_step.erase(at_step.begin());
  event();
}

void FakeDesktop::set_clipboard(const std::string& text) { clipboard.push_back(text); }

PageSize FakeDesktop::printer_page() {
  if (!has_printer) throw RuntimeError("printer", "no printer here");
  return paper;
}

void FakeDesktop::print(const Page& page) {
  if (!printing_works) throw RuntimeError("printer", "out of paper");
  prints.push_back(page);
}

std::uint32_t FakeDesktop::random_seed() {
  at_pick();
  return next_seed++;
}

void FakeDesktop::open_document(const std::string& document_or_address) {
  opened.push_back(document_or_address);
  if (!opening_works) throw RuntimeError(document_or_address, "no program opens it");
}

fs::path FakeDesktop::program_folder() {
  if (!has_program_folder)
    throw fs::filesystem_error("program folder", std::make_error_code(std::errc::io_error));
  return scratch_ / "program";
}

fs::path FakeDesktop::data_folder() {
  if (!has_data_folder) throw RuntimeError("data folder", "disk is read-only");
  return scratch_ / "data";
}

std::optional<std::uint32_t> FakeDesktop::exit_code(std::uint32_t id) {
  const auto known = exit_codes.find(id);
  return known == exit_codes.end() ? PlatformDesktop::exit_code(id) : known->second;
}

void FakeDesktop::replace_file(const std::string& file, std::string_view bytes) {
  if (!save_steps) return PlatformDesktop::replace_file(file, bytes);
  sdk::replace_file(file, bytes, *save_steps);
}

void FakeDesktop::report_error(const std::string& line) { errors.push_back(line); }

}  // namespace sdk::test
