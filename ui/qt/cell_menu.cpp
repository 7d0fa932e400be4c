// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_menu.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>
#include <QStylePainter>
#include <algorithm>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/key_codes.hpp"

namespace sdk {

namespace {

constexpr int pad_side = 3;
constexpr int frame_width = 3;
constexpr int line_height = 7;

int wrapped(int place, int count) { return (place + count) % count; }

bool is_between(int code, int first, int last) { return code >= first && code <= last; }

/// Whether the key does in the grid what the menu offers; undo and redo have no code.
bool is_offered(const KeyCode& key) {
  if (key.code == key::a || key.code == key::c) return key.ctrl;
  return key.code == key::del || key.code == key::backspace ||
         is_between(key.code, key::digit_1, key::digit_9) ||
         is_between(key.code, key::keypad_1, key::keypad_9);
}

bool chooses(int qt_key) {
  return qt_key == Qt::Key_Return || qt_key == Qt::Key_Enter || qt_key == Qt::Key_Space;
}

/// Beside `place`, to its right where the screen has room there.
QPoint corner_of_menu(const QRect& place, const QSize& size, const QRect& room) {
  const bool fits = place.right() + size.width() <= room.right();
  const int left = fits ? place.right() + 1 : place.left() - size.width();
  return {
      std::clamp(left, room.left(), std::max(room.left(), room.right() + 1 - size.width())),
      std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height()))};
}

QRect room_around(const QPoint& place) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

}  // namespace

CellMenu::CellMenu(QWidget* parent) : QFrame(parent, Qt::Popup) {
  setObjectName("cell_menu");
  setAttribute(Qt::WA_NoMouseReplay);
  auto* places = new QGridLayout(this);
  places->setSpacing(0);
  places->setContentsMargins(frame_width, frame_width, frame_width, frame_width);
  make_pad(*places);
  add_line(*places);
  erase_ = make_row(*places, "menu_erase", "");
  add_line(*places);
  undo_ = make_row(*places, "menu_undo", "Ctrl+Z");
  redo_ = make_row(*places, "menu_redo", "Ctrl+Y");
  add_line(*places);
  copy_ = make_row(*places, "menu_copy", "Ctrl+C");
  select_all_ = make_row(*places, "menu_select_all", "Ctrl+A");
  on_choice(*erase_, [this] { emit key_chosen(key::del, false); });
  on_choice(*undo_, [this] { emit undo_chosen(); });
  on_choice(*redo_, [this] { emit redo_chosen(); });
  on_choice(*copy_, [this] { emit key_chosen(key::c, true); });
  on_choice(*select_all_, [this] { emit key_chosen(key::a, true); });
}

void CellMenu::make_pad(QGridLayout& places) {
  for (int code = key::digit_1; code <= key::digit_9; ++code) {
    const int number = code - key::digit_1;
    auto* item = new CellMenuItem(CellMenuItem::Shape::square, "", this);
    item->setObjectName(QString("menu_%1").arg(QChar(code)));
    item->set_name(QChar(code));
    if (number % pad_side == 0) lines_.emplace_back();
    lines_.back().push_back(item);
    places.addWidget(item, number / pad_side, number % pad_side);
    on_choice(*item, [this, code] { emit key_chosen(code, false); });
  }
}

CellMenuItem* CellMenu::make_row(QGridLayout& places, const char* name, const char* keys) {
  auto* item = new CellMenuItem(CellMenuItem::Shape::row, keys, this);
  item->setObjectName(name);
  places.addWidget(item, places.rowCount(), 0, 1, pad_side);
  lines_.push_back({item});
  return item;
}

void CellMenu::add_line(QGridLayout& places) {
  auto* line = new QFrame(this);
  line->setFrameStyle(QFrame::HLine | QFrame::Plain);
  line->setForegroundRole(QPalette::PlaceholderText);
  line->setFixedHeight(line_height);
  places.addWidget(line, places.rowCount(), 0, 1, pad_side);
}

/// What was chosen may open a box, so the menu closes first.
template <class Chosen>
void CellMenu::on_choice(CellMenuItem& item, Chosen chosen) {
  connect(&item, &CellMenuItem::clicked, this, [this, chosen] {
    close();
    chosen();
  });
}

void CellMenu::show_state(const MainWindow& window) {
  set_accessible_name(*this, notice_text(Notice::cell_menu));
  erase_->set_name(notice_text(Notice::erase));
  undo_->set_name(notice_text(Notice::undo));
  redo_->set_name(notice_text(Notice::redo));
  copy_->set_name(notice_text(Notice::copy));
  select_all_->set_name(notice_text(Notice::select_all));
  undo_->setEnabled(window.can_undo());
  redo_->setEnabled(window.can_redo());
}

void CellMenu::open(const QRect& place, bool by_key) {
  column_ = 0;
  setFixedSize(sizeHint());
  move(corner_of_menu(place, size(), room_around(place.center())));
  show();
  QWidget* first = by_key ? lines_.front().front() : static_cast<QWidget*>(this);
  first->setFocus(Qt::PopupFocusReason);
}

void CellMenu::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionMenuItem panel;
  panel.initFrom(this);
  painter.drawPrimitive(QStyle::PE_PanelMenu, panel);
  QStyleOptionFrame frame;
  frame.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameMenu, frame);
}

/// Its column and its line; none: -1 in both.
QPoint CellMenu::place_of_focus() const {
  for (std::size_t line = 0; line < lines_.size(); ++line)
    for (std::size_t column = 0; column < lines_[line].size(); ++column)
      if (lines_[line][column]->hasFocus()) return {int(column), int(line)};
  return {-1, -1};
}

/// A press beside the menu closes it, and with the right button asks for the menu of that place.
void CellMenu::mousePressEvent(QMouseEvent* event) {
  if (rect().contains(event->pos())) return;
  close();
  const QPoint place = event->globalPosition().toPoint();
  QWidget* below = QApplication::widgetAt(place);
  if (event->button() != Qt::RightButton || !below) return;
  QCoreApplication::postEvent(
      below, new QContextMenuEvent(QContextMenuEvent::Mouse, below->mapFromGlobal(place), place));
}

void CellMenu::keyPressEvent(QKeyEvent* event) {
  if (move_focus(event->key()) || choose_by_key(*event)) return;
  if (CellMenuItem* item = item_chosen_by(*event)) item->click();
}

CellMenuItem* CellMenu::item_chosen_by(const QKeyEvent& event) const {
  if (chooses(event.key())) return qobject_cast<CellMenuItem*>(focusWidget());
  const QKeySequence keys(event.keyCombination());
  if (keys == QKeySequence("Ctrl+Z")) return undo_;
  const bool redoes = keys == QKeySequence("Ctrl+Y") || keys == QKeySequence("Ctrl+Shift+Z");
  return redoes ? redo_ : nullptr;
}

bool CellMenu::move_focus(int qt_key) {
  if (qt_key == Qt::Key_Up || qt_key == Qt::Key_Down)
    move_down(qt_key == Qt::Key_Down ? 1 : -1);
  else if (qt_key == Qt::Key_Left || qt_key == Qt::Key_Right)
    move_along(qt_key == Qt::Key_Right ? 1 : -1);
  else
    return false;
  return true;
}

void CellMenu::move_along(int right) {
  const QPoint from = place_of_focus();
  if (from.y() < 0) return lines_.front().front()->setFocus(Qt::TabFocusReason);
  const Line& line = lines_[std::size_t(from.y())];
  line[std::size_t(wrapped(from.x() + right, int(line.size())))]->setFocus(Qt::TabFocusReason);
}

/// Past what is greyed, and from the last line to the first.
void CellMenu::move_down(int down) {
  const QPoint from = place_of_focus();
  const int count = int(lines_.size());
  if (from.y() >= 0 && lines_[std::size_t(from.y())].size() > 1) column_ = from.x();
  int line = from.y() < 0 && down < 0 ? 0 : from.y();
  const auto item = [&] {
    const Line& items = lines_[std::size_t(line)];
    return items[std::min(std::size_t(column_), items.size() - 1)];
  };
  do line = wrapped(line + down, count);
  while (!item()->isEnabled());
  item()->setFocus(Qt::TabFocusReason);
}

bool CellMenu::choose_by_key(const QKeyEvent& event) {
  const KeyCode key = key_code(event);
  if (!is_offered(key)) return false;
  close();
  emit key_chosen(key.code, key.ctrl);
  return true;
}

}  // namespace sdk
