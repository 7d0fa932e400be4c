// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/qt_desktop.hpp"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include "game/globals.hpp"
#include "screen/errors.hpp"
#include "ui/messages.hpp"
#include "ui/qt/dialog_looks.hpp"
#include "ui/qt/main_frame.hpp"
#include "ui/qt/printing_service.hpp"
#include "ui/qt/small_screen.hpp"

namespace sdk {

namespace {

/// The core names an empty file in English, for scripts and logs; the player reads his language.
QString in_language_on_screen(const std::string& text) {
  const auto words = [](std::string_view language) {
    return QString::fromStdString(": " + notice(Notice::empty_file, language) + ")");
  };
  return QString::fromStdString(text).replace(words("En"), words(globals.Langue));
}

/// The window that boxes stand over; null before it is shown.
QWidget* shown(QWidget* window) { return window && window->isVisible() ? window : nullptr; }

/// Without a window it stands in the middle of the screen.
class Box : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);  // finds the size
    if (!parentWidget()) move(screen()->availableGeometry().center() - rect().center());
    keep_on_screen(*this);
  }
};

/// Puts a box over the upper edge of its window, so that it hides no cell that it speaks of.
void place(QMessageBox& box, const QWidget* window) {
  if (!window) return;
  box.adjustSize();
  const QRect frame = window->frameGeometry();
  box.move(frame.center().x() - box.width() / 2, frame.top());
}

}  // namespace

void QtDesktop::set_window(MainFrame* window) { window_ = window; }

/// Only the question of a hint has no picture; while it is open the player reads why it is right.
int QtDesktop::run(QMessageBox& box, bool asks_about_hint) {
  return asks_about_hint && window_ ? window_->ask_about_hint(box) : box.exec();
}

Answer QtDesktop::message_box(const std::string& text, Icon icon, Buttons buttons,
                              const std::string& title) {
  language_.follow();
  QWidget* window = shown(window_);
  const bool asks = buttons == Buttons::yes_no;
  Box box(QMessageBox::NoIcon, QString::fromStdString(title), in_language_on_screen(text),
          asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, window);
  fit_looks(box, icon);
  place(box, window);
  const int pressed = run(box, asks && icon == Icon::none);
  guard_.rethrow();
  if (!asks) return Answer::ok;
  return pressed == QMessageBox::Yes ? Answer::yes : Answer::no;
}

void QtDesktop::start_dialogs_in(const std::filesystem::path& folder) { dialogs_.start_in(folder); }

std::string QtDesktop::ask(const std::function<std::string()>& dialog) {
  language_.follow();
  std::string file = dialog();
  guard_.rethrow();
  return file;
}

std::string QtDesktop::open_dialog(const std::string& filter) {
  return ask([&] { return dialogs_.file_to_open(window_, filter); });
}

std::string QtDesktop::save_dialog(const std::string& filter) {
  return ask([&] { return dialogs_.file_to_save(window_, filter); });
}

void QtDesktop::set_pointer(Pointer shape) {
  if (!window_) return;
  if (shape == Pointer::hourglass)
    window_->setCursor(Qt::WaitCursor);
  else
    window_->unsetCursor();
}

void QtDesktop::let_events_run() {
  if (!pump_.poll()) return;
  QCoreApplication::processEvents();
  guard_.rethrow();
}

void QtDesktop::set_clipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

PageSize QtDesktop::printer_page() {
  return has_default_printer() ? default_printer_page() : pdf_page();
}

void QtDesktop::print(const Page& page) {
  if (has_default_printer()) return print_on_default_printer(page);
  const std::string file = ask([&] { return dialogs_.file_to_print_to(window_); });
  if (!file.empty()) replace_file(file, pdf_of(page));
}

void QtDesktop::open_document(const std::string& document_or_address) {
  const QUrl url = QUrl::fromUserInput(QString::fromStdString(document_or_address));
  if (!QDesktopServices::openUrl(url))
    throw RuntimeError(document_or_address, "no program opens it");
}

std::filesystem::path QtDesktop::data_folder() {
  std::filesystem::path folder =
      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) throw RuntimeError(folder.string(), error.message());
  return folder;
}

}  // namespace sdk
