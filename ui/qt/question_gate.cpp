// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/question_gate.hpp"

#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

namespace sdk {

namespace {

/// What a player does to a widget, or hears from it about what could be done.
constexpr QEvent::Type input_types[] = {QEvent::KeyPress,
                                        QEvent::KeyRelease,
                                        QEvent::ShortcutOverride,
                                        QEvent::Shortcut,
                                        QEvent::InputMethod,
                                        QEvent::MouseButtonPress,
                                        QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick,
                                        QEvent::MouseMove,
                                        QEvent::Wheel,
                                        QEvent::ContextMenu,
                                        QEvent::Enter,
                                        QEvent::HoverEnter,
                                        QEvent::HoverMove,
                                        QEvent::ToolTip,
                                        QEvent::WhatsThis,
                                        QEvent::TouchBegin,
                                        QEvent::TouchUpdate,
                                        QEvent::TouchEnd,
                                        QEvent::TabletPress,
                                        QEvent::TabletMove,
                                        QEvent::TabletRelease,
                                        QEvent::NativeGesture,
                                        QEvent::DragEnter,
                                        QEvent::DragMove,
                                        QEvent::Drop};

bool is_input(QEvent::Type type) {
  return std::ranges::find(input_types, type) != std::end(input_types);
}

/// The widgets of `part` that Tab reaches.
template <class Widget>
std::vector<QWidget*> tab_stops(const QWidget& part) {
  std::vector<QWidget*> stops;
  for (QWidget* widget : part.findChildren<Widget*>())
    if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus) stops.push_back(widget);
  return stops;
}

/// 1 for Tab, -1 for Shift and Tab, 0 for anything else.
int direction_of(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return 0;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Tab ? 1 : key == Qt::Key_Backtab ? -1 : 0;
}

}  // namespace

int QuestionGate::ask(QMessageBox& box) {
  const QScopedValueRollback asking(box_, &box);
  const QPointer<QWidget> focus = window_.focusWidget();
  QEventLoop loop;
  QObject::connect(&box, &QDialog::finished, &loop, &QEventLoop::quit);
  box.setModal(false);  // a message box is, unless it is told
  box.show();
  box.activateWindow();
  loop.exec(QEventLoop::DialogExec);
  if (focus) focus->setFocus();
  if (!box.isVisible()) window_.activateWindow();
  return box.result();
}

bool QuestionGate::stops_while_asking(QObject* receiver, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(receiver);
  if (!widget) return false;
  const bool in_window = widget->window() == &window_;
  if (!in_window && widget->window() != box_) return false;
  if (moves_focus(*widget, *event)) return true;
  return in_window && stops_in_window(*widget, *event);
}

bool QuestionGate::stops_in_window(QWidget& widget, const QEvent& event) {
  if (&widget == &window_ && event.type() == QEvent::WindowActivate &&
      !is_open(window_.focusWidget()))
    tab_stops<QWidget>(open_part_).front()->setFocus();
  if (is_open(&widget) || !is_input(event.type())) return false;
  if (event.type() == QEvent::MouseButtonPress) return_to_box();
  return true;
}

/// Scrolling changes nothing but what is in sight.
bool QuestionGate::is_open(const QWidget* widget) const {
  return widget == &open_part_ || open_part_.isAncestorOf(widget) ||
         qobject_cast<const QScrollBar*>(widget);
}

std::vector<QWidget*> QuestionGate::tab_order() const {
  std::vector<QWidget*> order = tab_stops<QPushButton>(*box_);
  std::ranges::sort(order, {}, [](const QWidget* button) { return button->x(); });
  std::ranges::copy(tab_stops<QWidget>(open_part_), std::back_inserter(order));
  return order;
}

/// From a widget outside the order Tab goes to the box.
bool QuestionGate::moves_focus(QWidget& widget, const QEvent& event) {
  const int direction = direction_of(event);
  if (direction == 0) return false;
  const std::vector<QWidget*> order = tab_order();
  const auto from = std::ranges::find(order, &widget);
  const auto places = static_cast<std::ptrdiff_t>(order.size());
  const auto place = from == order.end() ? 0 : (from - order.begin() + direction + places) % places;
  QWidget& to = *order[static_cast<std::size_t>(place)];
  to.window()->activateWindow();
  to.setFocus(direction > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

}  // namespace sdk
