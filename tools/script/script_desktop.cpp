// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/script_desktop.hpp"

#include <ostream>

#include "files/platform.hpp"
#include "screen/errors.hpp"
#include "tools/script/text_format.hpp"

namespace sdk {

namespace {

constexpr PageSize a4_in_twips{11906, 16838};

const char* icon_name(Icon icon) {
  switch (icon) {
    case Icon::none:
      return "none";
    case Icon::exclamation:
      return "exclamation";
    case Icon::critical:
      return "critical";
    case Icon::question:
      break;
  }
  return "question";
}

const char* answer_name(Answer answer) {
  switch (answer) {
    case Answer::ok:
      return "ok";
    case Answer::yes:
      return "yes";
    case Answer::no:
      break;
  }
  return "no";
}

/// Prints the drawings of a page, one a line.
struct DrawingPrinter {
  std::ostream& out;

  void operator()(const TextDrawing& t) const {
    out << "print text " << decimal(t.x) << ' ' << decimal(t.y) << ' ' << in_quotes(t.font) << ' '
        << t.size << ' ' << in_quotes(t.text) << '\n';
  }
  void operator()(const PictureDrawing& p) const {
    out << "print picture " << decimal(p.x) << ' ' << decimal(p.y) << ' ' << decimal(p.width) << ' '
        << decimal(p.height) << '\n';
  }
  void operator()(const LineDrawing& line) const { out << "print " << line_text(line) << '\n'; }
};

}  // namespace

const char* pointer_name(Pointer shape) { return shape == Pointer::arrow ? "arrow" : "hourglass"; }

Answer ScriptDesktop::take_answer() {
  if (answers_.empty()) return Answer::no;
  const Answer answer = answers_.front();
  answers_.pop_front();
  return answer;
}

Answer ScriptDesktop::message_box(const std::string& text, Icon icon, Buttons buttons,
                                  const std::string& title) {
  const bool asks = buttons == Buttons::yes_no;
  if (asks) question_();
  const Answer answer = asks ? take_answer() : Answer::ok;
  out_ << "box " << icon_name(icon) << ' ' << in_quotes(title) << ' ' << in_quotes(text)
       << (asks ? " yes,no -> " : " ok -> ") << answer_name(answer) << '\n';
  return answer;
}

std::string ScriptDesktop::answer_dialog(const char* kind, const std::string& filter) {
  std::string path;
  if (!files_.empty()) {
    path = std::move(files_.front());
    files_.pop_front();
  }
  out_ << "dialog " << kind << ' ' << in_quotes(filter) << " -> "
       << (path.empty() ? "cancelled" : in_quotes(path)) << '\n';
  return path;
}

std::string ScriptDesktop::open_dialog(const std::string& filter) {
  return answer_dialog("open", filter);
}

std::string ScriptDesktop::save_dialog(const std::string& filter) {
  return answer_dialog("save", filter);
}

void ScriptDesktop::set_pointer(Pointer shape) {
  if (shape == pointer_) return;
  pointer_ = shape;
  out_ << "pointer " << pointer_name(shape) << '\n';
}

PageSize ScriptDesktop::printer_page() {
  if (!settings.printer) throw RuntimeError("printer", "no default printer");
  return a4_in_twips;
}

void ScriptDesktop::print(const Page& page) {
  out_ << "print begin\n";
  for (const Drawing& drawing : page) std::visit(DrawingPrinter{out_}, drawing);
  out_ << "print end\n";
}

std::uint32_t ScriptDesktop::random_seed() {
  return settings.seed ? *settings.seed : PlatformDesktop::random_seed();
}

int ScriptDesktop::year() { return settings.year ? *settings.year : PlatformDesktop::year(); }

void ScriptDesktop::open_document(const std::string& document_or_address) {
  out_ << "open " << in_quotes(document_or_address) << '\n';
}

std::filesystem::path ScriptDesktop::data_folder() {
  auto folder = platform::data_home() / "sudoku";
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  if (failure) throw RuntimeError(folder.string(), failure.message());
  return folder;
}

std::filesystem::path ScriptDesktop::program_folder() {
  return settings.program.empty() ? PlatformDesktop::program_folder() : settings.program;
}

void ScriptDesktop::report_error(const std::string& line) { errors_ << line << std::endl; }

}  // namespace sdk
