// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/small_screen.hpp"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace sdk {

namespace {

constexpr int step = 26;   // of a scroll bar: half a cell
constexpr int margin = 8;  // around what is brought into sight

int value_of(const QScrollBar* bar) { return bar ? bar->value() : 0; }

void bring(QScrollBar* bar, int first, int last) {
  if (!bar) return;
  bar->setValue(std::max(bar->value(), last + margin - bar->pageStep()));
  bar->setValue(std::min(bar->value(), first - margin));
}

bool can_scroll(const QWidget& widget) {
  if (qobject_cast<const QScrollBar*>(&widget)) return true;
  const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget);
  return area && area->verticalScrollBar()->maximum() > 0;
}

/// Whether `widget` itself or what it stands in can scroll, short of the window.
bool scrolls_itself(const QWidget* widget) {
  for (; widget && !widget->isWindow(); widget = widget->parentWidget())
    if (can_scroll(*widget)) return true;
  return false;
}

QMargins frame_of(const QWidget& window) {
  const QRect inside = window.geometry(), frame = window.frameGeometry();
  return {inside.left() - frame.left(), inside.top() - frame.top(), frame.right() - inside.right(),
          frame.bottom() - inside.bottom()};
}

}  // namespace

void keep_on_screen(QWidget& window) {
  const QRect available = window.screen()->availableGeometry(), frame = window.frameGeometry();
  const QPoint most =
      available.bottomRight() - QPoint(frame.width(), frame.height()) + QPoint(1, 1);
  const QPoint place(std::max(available.left(), std::min(frame.left(), most.x())),
                     std::max(available.top(), std::min(frame.top(), most.y())));
  if (place != frame.topLeft()) window.move(place);
}

SmallScreen::SmallScreen(QWidget& window) : QObject(&window), window_(window) {
  window.installEventFilter(this);
}

void SmallScreen::fit(QSize page) {
  page_ = page;
  adapt();
}

QPoint SmallScreen::origin() const { return {-value_of(across_), -value_of(down_)}; }

void SmallScreen::bring_into_sight(const QRect& area) {
  bring(across_, area.left(), area.right());
  bring(down_, area.top(), area.bottom());
}

bool SmallScreen::scrolls_for(QObject* watched, QEvent* event) {
  if (is_whole() || event->type() != QEvent::Wheel) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget || widget->window() != &window_ || scrolls_itself(widget)) return false;
  const QPoint turn = static_cast<QWheelEvent*>(event)->angleDelta();
  const bool sideways = std::abs(turn.x()) > std::abs(turn.y());
  QScrollBar* bar = across_ && (sideways || !down_) ? across_ : down_;
  if (bar) QCoreApplication::sendEvent(bar, event);
  return true;
}

/// A window learns of its frame when the frame moves it.
bool SmallScreen::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Show) follow_screen();
  if (event->type() == QEvent::Move && adapt()) emit moved();
  return false;
}

void SmallScreen::follow_screen() {
  connect(window_.windowHandle(), &QWindow::screenChanged, this,
          &SmallScreen::follow_available_room, Qt::UniqueConnection);
  follow_available_room();
}

void SmallScreen::follow_available_room() {
  disconnect(available_changed_);
  available_changed_ = connect(window_.screen(), &QScreen::availableGeometryChanged, this, [this] {
    if (adapt()) emit moved();
  });
  if (adapt()) emit moved();
}

SmallScreen::Surroundings SmallScreen::surroundings() const {
  return {page_, window_.screen()->availableGeometry(), frame_of(window_)};
}

/// False when nothing changed that the size follows from. The player may otherwise put the window
/// wherever he likes.
bool SmallScreen::adapt() {
  const Surroundings now = surroundings();
  if (page_.isEmpty() || now == known_) return false;
  known_ = now;
  const QSize view = view_of(now);
  show_bars(view);
  window_.setFixedSize(view + QSize(down_ ? bar_width() : 0, across_ ? bar_width() : 0));
  if (window_.isVisible()) keep_on_screen(window_);
  return true;
}

/// A bar takes room from the other direction.
QSize SmallScreen::view_of(const Surroundings& now) const {
  const QSize room = now.available.marginsRemoved(now.frame).size();
  QSize view = now.page.boundedTo(room);
  for (int round = 0; round < 2; ++round) {
    const int right = view.height() < now.page.height() ? bar_width() : 0;
    const int below = view.width() < now.page.width() ? bar_width() : 0;
    view = now.page.boundedTo(room - QSize(right, below));
  }
  return view;
}

int SmallScreen::bar_width() const {
  return window_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window_);
}

void SmallScreen::show_bars(QSize view) {
  show_bar(across_, Qt::Horizontal, view.width(), page_.width());
  show_bar(down_, Qt::Vertical, view.height(), page_.height());
  if (across_) across_->setGeometry(0, view.height(), view.width(), bar_width());
  const int corner = across_ ? bar_width() : 0;
  if (down_) down_->setGeometry(view.width(), 0, bar_width(), view.height() + corner);
}

void SmallScreen::show_bar(QScrollBar*& bar, Qt::Orientation orientation, int view, int page) {
  if (view >= page) return delete std::exchange(bar, nullptr);
  if (!bar) {
    bar = new QScrollBar(orientation, &window_);
    connect(bar, &QScrollBar::valueChanged, this, &SmallScreen::moved);
    bar->show();
  }
  const QSignalBlocker silent(bar);
  bar->setRange(0, page - view);
  bar->setPageStep(view);
  bar->setSingleStep(step);
}

}  // namespace sdk
