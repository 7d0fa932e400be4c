// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/main_frame.hpp"

#include <QApplication>
#include <QCloseEvent>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/object_names.hpp"

namespace sdk {

namespace {

template <class Part, class... Shown>
Part* make_part(const char* name, QWidget* parent, Shown&... shown) {
  auto* part = new Part(shown..., parent);
  part->setObjectName(name);
  return part;
}

QFrame* make_frame(Control control, QWidget* parent) {
  auto* frame = new QFrame(parent);
  name_after(*frame, control);
  frame->setFrameStyle(QFrame::Box | QFrame::Plain);
  frame->setLineWidth(2);
  return frame;
}

GridView* make_grid(Control control, DisplayGrid& grid, GridLook look, QWidget* parent) {
  auto* view = new GridView(grid, look, parent);
  name_after(*view, control);
  return view;
}

/// What the window's frame offers: all but to maximise a window of one size.
constexpr Qt::WindowFlags frame_buttons = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                          Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                          Qt::WindowCloseButtonHint;

}  // namespace

// The order of the children is the order of Tab.
MainFrame::MainFrame(MainWindow& window, ProgramGuard& guard)
    : QWidget(nullptr, Qt::Window | frame_buttons),
      window_(window),
      guard_(guard),
      commands_(make_part<CommandBar>("commands", this)),
      rect_(make_frame(Control::rect, this)),
      msf_(make_grid(Control::MSF, window.MSF, {puzzle_font_size, true, StepLook::frames, true},
                     this)),
      rect2_(make_frame(Control::rect2, this)),
      msr_(make_grid(Control::MSR, window.MSR,
                     {candidates_font_size, false, StepLook::cells, false}, this)),
      options_(make_part<OptionBar>("options", this)),
      explanation_(make_part<ExplanationPanel>("explanation", this)),
      lines_(make_part<LineOverlay>("lines", this, window)),
      small_screen_(*this),
      gate_(*this, *explanation_),
      stopper_(window, guard),
      update_(*this, [this] { show_state(); }),
      update_explanation_(*this, [this] { show_explanation(); }),
      long_search_([this] { update_explanation_.ask(); }) {
  install_accessible_roles();
  setObjectName("sudoku");
  connect_bars();
  connect_grids();
  make_menu();
  watch_application();
  msf_->setFocus();
  window_.set_listener(this);
  update_.ask();
}

MainFrame::~MainFrame() { window_.set_listener(nullptr); }

void MainFrame::connect_bars() {
  connect(commands_, &CommandBar::clicked, this,
          [this](Control b) { act([this, b] { window_.click(b); }, during_search(b)); });
  connect(commands_, &CommandBar::undo_clicked, this,
          [this] { act([this] { window_.undo(); }, DuringSearch::stops_it); });
  connect(commands_, &CommandBar::redo_clicked, this,
          [this] { act([this] { window_.redo(); }, DuringSearch::stops_it); });
  connect(commands_, &CommandBar::focus_lost, this,
          [this](Control button) { guard_.run([&] { window_.focus_lost(button); }); });
  connect(options_, &OptionBar::ticked, this,
          [this](Control box, bool on) { act([&] { window_.check(box, on); }); });
  connect(options_, &OptionBar::level_chosen, this,
          [this](int item) { act([&] { window_.choose_level(item); }); });
  connect(explanation_, &ExplanationPanel::step_chosen, this,
          [this](std::optional<std::size_t> step) { window_.choose_step(step); });
}

/// Handles a command of the player. A screen reader gives it without an event that the gate sees;
/// then the control that it used is set right again.
void MainFrame::act(const std::function<void()>& handler, DuringSearch during) {
  if (gate_.is_asking()) return update_.ask();
  stopper_.run(handler, during);
}

void MainFrame::connect_grids() {
  msr_->setFocusPolicy(Qt::TabFocus);
  connect(msf_, &GridView::key_pressed, this,
          [this](int code, bool ctrl) { act([&] { window_.key_down(code, ctrl); }); });
  connect(msf_, &GridView::key_pressed, this, [this] { show_current_cell(*msf_); });
  for (const GridView* grid : {msf_, msr_}) {
    connect(grid, &GridView::button_pressed_or_released, this,
            [this] { guard_.run([&] { window_.redraw_lines(); }); });
    connect(grid->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, grid] { show_current_cell(*grid); });
  }
}

void MainFrame::watch_application() {
  qApp->installEventFilter(this);
  connect(qApp, &QGuiApplication::commitDataRequest, this, &MainFrame::expect_session_end);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* focus) { show_focus(focus); });
  connect(&small_screen_, &SmallScreen::moved, this, &MainFrame::place_widgets);
}

void MainFrame::finish_start() {
  act([this] { window_.finish_start(); });
}

int MainFrame::ask_about_hint(QMessageBox& box) {
  update_.make_now();
  update_explanation_.make_now();
  box.setAccessibleDescription(explanation_->last_sentence());
  show_offer(box);
  return gate_.ask(box);
}

void MainFrame::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (gate_.is_asking() && !session_ends_) return;
  const CloseMode mode = session_ends_ ? CloseMode::session_end : CloseMode::window_command;
  guard_.run([&] {
    if (!window_.confirm_close(mode)) return;
    if (session_ends_) window_.rescue_grid("session");
    throw ProgramEnd{0};
  });
}

void MainFrame::resizeEvent(QResizeEvent*) {
  guard_.run([&] { window_.redraw_lines(); });
}

void MainFrame::controls_changed() { update_.ask(); }

void MainFrame::layout_changed() { update_.ask(); }

void MainFrame::lines_drawn() { lines_->redraw(); }

void MainFrame::focus_changed() {
  if (window_.focus() == Control::MSF) msf_->setFocus();
}

void MainFrame::about_changed() {
  close_about();
  if (window_.about().shown()) open_about();
}

void MainFrame::explanation_changed() { update_explanation_.ask(); }

void MainFrame::searches_changed() { long_search_.set_searches(window_.searches_running); }

void MainFrame::close_about() {
  if (!about_) return;
  about_->hide();
  about_->deleteLater();  // it may be in the middle of an event
  about_ = nullptr;
}

void MainFrame::open_about() {
  about_ = new AboutDialog(window_.about(), this);
  connect(about_, &AboutDialog::clicked, this,
          [this](AboutControl control) { guard_.run([&] { window_.click_about(control); }); });
  connect(about_, &AboutDialog::dismissed, this,
          [this] { guard_.run([&] { window_.close_about(); }); });
  about_->open();
}

void MainFrame::refresh() {
  update_.make_now();
  update_explanation_.make_now();
  repaint();
}

void MainFrame::show_state() {
  setWindowTitle(QString::fromStdString(window_.title()));
  commands_->show_state(window_);
  options_->show_state(window_);
  show_grid_names();
  rect_->setVisible(window_.visible(Control::rect));
  rect2_->setVisible(window_.visible(Control::rect2));
  // A grid that is hidden without its frame is only being rewritten.
  msf_->setVisible(window_.visible(Control::rect));
  msr_->setVisible(window_.visible(Control::rect2));
  place_widgets();
  show_explanation();
}

void MainFrame::show_explanation() {
  const Explanation& explanation = window_.explanation();
  const bool beside = window_.visible(Control::rect2);
  const std::optional<StepPicture> step = explanation.picture();
  msr_->show_step(beside ? step : std::nullopt);
  msf_->show_step(beside ? std::nullopt : step ? step : explanation.outcome());
  if (explanation.size() == 0 && explanation_->isAncestorOf(focusWidget())) msf_->setFocus();
  explanation_->show_state(explanation, long_search_.is_noticed());
}

void MainFrame::show_grid_names() {
  msf_->set_accessible_name(notice_text(Notice::puzzle));
  msr_->set_accessible_name(notice_text(Notice::candidates));
}

}  // namespace sdk
