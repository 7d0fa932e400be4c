// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The game's window on screen: it shows what MainWindow holds and hands it the player's events.
#pragma once

#include <QFrame>
#include <QPointer>
#include <QWidget>

#include "ui/main_window.hpp"
#include "ui/qt/about_dialog.hpp"
#include "ui/qt/command_bar.hpp"
#include "ui/qt/deferred_call.hpp"
#include "ui/qt/explanation_panel.hpp"
#include "ui/qt/grid_view.hpp"
#include "ui/qt/line_overlay.hpp"
#include "ui/qt/long_search.hpp"
#include "ui/qt/option_bar.hpp"
#include "ui/qt/program_guard.hpp"
#include "ui/qt/question_gate.hpp"
#include "ui/qt/search_stopper.hpp"
#include "ui/qt/small_screen.hpp"

namespace sdk {

class MainFrame : public QWidget, private WindowListener {
  Q_OBJECT

 public:
  /// Becomes the listener of `window`; `window` and `guard` must outlive the frame.
  MainFrame(MainWindow& window, ProgramGuard& guard);
  ~MainFrame() override;

  /// To be called once, before the window is shown: places it in the middle of the screen.
  void centre_on_screen();

  /// The rest of start-up, to be called once the window is shown.
  void finish_start();

  /// Asks the question of a hint, which the explanation of the hint is read beside; returns what
  /// QuestionGate::ask returns.
  int ask_about_hint(QMessageBox& box);

  /// The session is about to end: until the player does something, closing asks nothing.
  void expect_session_end() { session_ends_ = true; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void controls_changed() override;
  void layout_changed() override;
  void lines_drawn() override;
  void focus_changed() override;
  void about_changed() override;
  void explanation_changed() override;
  void searches_changed() override;
  void refresh() override;

  void connect_bars();
  void connect_grids();
  void make_menu();
  void watch_application();

  void act(const std::function<void()>& handler, DuringSearch during = DuringSearch::acts);
  void preview(int code);
  void open_about();
  void close_about();
  void show_state();
  void show_grid_names();
  void show_explanation();
  void place_widgets();
  void place_bands(const QRect& inside, const QRect& msf_frame);
  QRect area_of(const QWidget& widget, const QRect& part) const;
  void show_cell(const GridView& grid, int row, int column);
  void show_current_cell(const GridView& grid);
  void show_focus(QWidget* focus);
  void show_offer(QMessageBox& box);

  MainWindow& window_;
  ProgramGuard& guard_;
  CommandBar* commands_;
  QFrame* rect_;
  GridView* msf_;
  QFrame* rect2_;
  GridView* msr_;
  OptionBar* options_;
  ExplanationPanel* explanation_;
  LineOverlay* lines_;
  SmallScreen small_screen_;
  QuestionGate gate_;
  SearchStopper stopper_;
  AboutDialog* about_ = nullptr;  ///< exists while the box is shown
  DeferredCall update_;
  DeferredCall update_explanation_;
  LongSearch long_search_;
  bool session_ends_ = false;
};

}  // namespace sdk
