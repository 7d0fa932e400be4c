// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/command_bar.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/icons.hpp"
#include "ui/qt/object_names.hpp"

namespace sdk {

namespace {

struct ButtonLook {
  Control control;
  const char* icon;
  bool starts_group;
  const char* shortcut;
};

/// From left to right: the puzzle and its file, help with solving it, the program. Undo and redo
/// follow the button that clears.
constexpr ButtonLook button_looks[] = {
    {Control::Command1, "new", false, "Ctrl+N"},
    {Control::Command6, "load", false, "Ctrl+O"},
    {Control::sauve, "save", false, "Ctrl+S"},
    {Control::Command4, "print", false, "Ctrl+P"},
    {Control::Command8, "hint", true, "Ctrl+H"},
    {Control::Command7, "verify", false, ""},
    {Control::Bouton_GO, "solve", false, ""},
    {Control::Command2, "clear", false, ""},
    {Control::aide, "help", true, ""},
    {Control::Command5, "about", false, ""},
    {Control::Command3, "quit", false, "Ctrl+Q"},
};

constexpr int icon_side = 28;
constexpr int button_side = 44;
constexpr int button_gap = 2;

QString name_for_player(const MainWindow& window, Control button) {
  const std::string& tooltip = window.control(button).tooltip;
  return tooltip.empty() ? notice_text(Notice::hint) : QString::fromStdString(tooltip);
}

void show_turn(QToolButton& button, Notice name, bool possible) {
  button.setToolTip(notice_text(name));
  set_accessible_name(button, notice_text(name));
  button.setEnabled(possible);
}

/// Has each of the keys, which are divided by blanks, do what a click on `button` does, as long as
/// `owner` is shown and enabled.
template <class Pressed>
void add_shortcuts(QToolButton& button, const QString& keys, QWidget& owner, Pressed pressed) {
  button.setAccessibleDescription(keys);
  for (const QString& key : keys.split(' ', Qt::SkipEmptyParts)) {
    auto* shortcut = new QShortcut(QKeySequence(key), &owner);
    shortcut->setAutoRepeat(&owner != &button);
    QObject::connect(shortcut, &QShortcut::activated, &owner, pressed);
  }
}

}  // namespace

CommandBar::CommandBar(QWidget* parent) : QWidget(parent), title_(new QLabel(this)) {
  name_after(*title_, Control::Label3);
  title_->setTextFormat(Qt::PlainText);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(title_);
  rows->addLayout(make_buttons());
}

QLayout* CommandBar::make_buttons() {
  auto* row = new QHBoxLayout;
  row->setSpacing(button_gap);
  for (const ButtonLook& look : button_looks) {
    if (look.starts_group) row->addStretch();
    row->addWidget(make_command(look.control, look.icon, look.shortcut));
    if (look.control != Control::Command2) continue;
    row->addWidget(undo_ = make_button("undo", "undo"));
    row->addWidget(redo_ = make_button("redo", "redo"));
  }
  connect(undo_, &QToolButton::clicked, this, &CommandBar::undo_clicked);
  connect(redo_, &QToolButton::clicked, this, &CommandBar::redo_clicked);
  // Keys may come faster than the buttons become usable.
  add_shortcuts(*undo_, "Ctrl+Z", *this, [this] { emit undo_clicked(); });
  add_shortcuts(*redo_, "Ctrl+Shift+Z Ctrl+Y", *this, [this] { emit redo_clicked(); });
  return row;
}

QToolButton* CommandBar::make_command(Control control, const char* icon, const char* shortcut) {
  QToolButton* button = make_button("", icon);
  name_after(*button, control);
  add_shortcuts(*button, shortcut, *button, [button] { button->click(); });
  button->installEventFilter(this);
  connect(button, &QToolButton::clicked, this, [this, control] { emit clicked(control); });
  buttons_.push_back({control, button});
  return button;
}

QToolButton* CommandBar::make_button(const char* name, const char* icon) {
  auto* button = new IconButton(name, icon, icon_side, button_side, this);
  QSizePolicy policy = button->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  button->setSizePolicy(policy);
  return button;
}

/// Sees the events of the buttons.
bool CommandBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::FocusOut) return false;
  const auto left = std::ranges::find(buttons_, watched, &Button::widget);
  if (left != buttons_.end()) emit focus_lost(left->control);
  return false;
}

void CommandBar::show_state(const MainWindow& window) {
  set_accessible_name(*this, notice_text(Notice::commands));
  title_->setText(QString::fromStdString(window.control(Control::Label3).caption));
  title_->setVisible(window.visible(Control::Label3));
  for (const auto& [control, button] : buttons_) {
    const QString name = name_for_player(window, control);
    button->setToolTip(name);
    set_accessible_name(*button, name);
    button->setVisible(window.visible(control));
  }
  show_turn(*undo_, Notice::undo, window.can_undo());
  show_turn(*redo_, Notice::redo, window.can_redo());
}

}  // namespace sdk
